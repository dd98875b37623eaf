#include "support/dbf.h"

#include <algorithm>

#include "support/text.h"

namespace ox {
namespace {

constexpr std::uint32_t descriptor_size = 32;
constexpr std::uint8_t end_of_descriptors = 0x0D;

}  // namespace

int Tox_dbf::dbf_open(const std::string& path, bool read_only) {
    dbf_close();
    path_ = path;
    if (file_.open(path, read_only) != Tox_file::success) return Tox_file::not_opened;
    file_.read(0, header_.bytes.data(), header_.bytes.size());
    read_fields();
    allocate_record();
    return Tox_file::success;
}

// The descriptors end at 0x0D or, in tables that lack it, where the header ends.
void Tox_dbf::read_fields() {
    if (header_.record_length() == 0) return;
    std::uint32_t next = 1;  // behind the deletion flag
    for (std::uint32_t at = descriptor_size; at + descriptor_size <= header_.header_length();
         at += descriptor_size) {
        std::uint8_t first = end_of_descriptors;
        if (file_.read(at, &first, 1) != 1 || first == end_of_descriptors) return;
        dbf_field field;
        field.bytes[0] = first;
        file_.read(at + 1, field.bytes.data() + 1, descriptor_size - 1);
        if (field.displacement() == 0) field.set_displacement(next);
        next = field.displacement() + field.length();
        fields_.push_back(field);
    }
}

void Tox_dbf::allocate_record() {
    record_.assign(header_.record_length(), '\0');
    loaded_ = 0;
    current_ = no_record;
    dirty_ = false;
}

void Tox_dbf::dbf_close() {
    write_back();
    file_.close();
    header_ = {};
    fields_.clear();
    allocate_record();
}

std::uint64_t Tox_dbf::record_offset(std::uint32_t index) const {
    return header_.header_length() + std::uint64_t{index} * header_.record_length();
}

// A record that has no more than its deletion flag in the file holds nothing; the end mark of a table
// whose header claims too much looks like one.
std::uint32_t Tox_dbf::stored_record_count() {
    const std::uint32_t first = header_.header_length(), length = header_.record_length();
    const std::uint32_t size = file_.size();
    if (length == 0 || size < first + 2) return 0;
    const std::uint32_t begun = (size - first - 2) / length + 1;
    return std::min(begun, record_count());
}

const dbf_field& Tox_dbf::field(std::uint32_t index) const {
    static constexpr dbf_field none;
    return index < fields_.size() ? fields_[index] : none;
}

bool Tox_dbf::find_field(std::string_view name, std::uint32_t& index) const {
    const auto found = std::find_if(fields_.begin(), fields_.end(), [&](const dbf_field& field) {
        return equal_no_case(trimmed(field.name()), trimmed(name));
    });
    if (found == fields_.end()) return false;
    index = static_cast<std::uint32_t>(found - fields_.begin());
    return true;
}

void Tox_dbf::go_record(std::uint32_t index) {
    if (index == current_) return;
    write_back();
    read_record(index);
    current_ = index;
}

void Tox_dbf::read_record(std::uint32_t index) {
    if (!file_.is_open()) return;
    loaded_ = file_.read(record_offset(index), record_.data(), record_.size());
    std::fill(record_.begin() + static_cast<std::ptrdiff_t>(loaded_), record_.end(), ' ');
}

}  // namespace ox
