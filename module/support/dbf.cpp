#include "support/dbf.h"

#include <algorithm>

#include "support/text.h"

namespace ox {
namespace {

constexpr std::uint32_t descriptor_size = 32;
constexpr std::uint64_t largest_block = 0xFFFF;  // header and record lengths have 16 bits
constexpr std::uint8_t end_of_descriptors = 0x0D;
constexpr char end_of_table = '\x1A';

std::vector<dbf_field> describe(std::span<const Tox_dbf_field_def> columns) {
    std::vector<dbf_field> fields;
    std::uint32_t displacement = 1;  // behind the deletion flag
    for (const auto& column : columns) {
        auto& field = fields.emplace_back();
        field.set_name(column.name);
        field.set_type(column.type);
        field.set_displacement(displacement);
        field.set_length(std::min(column.length, 255u));
        field.set_decimals(std::min(column.decimals, 255u));
        displacement += field.length();
    }
    return fields;
}

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

int Tox_dbf::dbf_create(const std::string& path, std::span<const Tox_dbf_field_def> columns,
                        std::uint32_t count) {
    dbf_close();
    path_ = path;
    auto fields = describe(columns);
    const std::uint64_t header_length = columns.size() * descriptor_size + 33;
    const std::uint64_t record_length =
        fields.empty() ? 1 : fields.back().displacement() + fields.back().length();
    // An empty path opens nothing and is reported like any other file that cannot be created.
    const bool fits = header_length <= largest_block && record_length <= largest_block;
    if (file_.create(fits ? path : std::string()) != Tox_file::success) return Tox_file::not_opened;

    fields_ = std::move(fields);
    header_.bytes = {3, 1, 1, 1};  // version, then year, month and day, which nobody keeps
    header_.set_record_count(count);
    header_.set_header_length(static_cast<std::uint32_t>(header_length));
    header_.set_record_length(static_cast<std::uint32_t>(record_length));
    allocate_record();

    write_header();
    for (std::uint32_t i = 0; i < field_count(); ++i) {
        file_.write((i + 1) * descriptor_size, fields_[i].bytes.data(), descriptor_size);
    }
    file_.write(header_length - 1, &end_of_descriptors, 1);
    write_blank_records(0, count);
    return Tox_file::success;
}

void Tox_dbf::allocate_record() {
    record_.assign(header_.record_length(), '\0');
    loaded_ = 0;
    current_ = buffered_ = no_record;
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
    if (index != current_ || index != buffered_) read_record(index);
    current_ = index;
}

void Tox_dbf::read_record(std::uint32_t index) {
    write_back();
    if (!file_.is_open()) return;
    loaded_ = file_.read(record_offset(index), record_.data(), record_.size());
    std::fill(record_.begin() + static_cast<std::ptrdiff_t>(loaded_), record_.end(), ' ');
    buffered_ = index;
}

bool Tox_dbf::write_record(std::uint32_t index) {
    if (!file_.is_open()) return false;
    if (index >= record_count()) {
        file_.report_write_error();
        return false;
    }
    return file_.write(record_offset(index), record_.data(), record_.size());
}

void Tox_dbf::write_back() {
    if (dirty_ && buffered_ != no_record) write_record(buffered_);
    dirty_ = false;
}

void Tox_dbf::write_blank_records(std::uint32_t first, std::uint32_t count) {
    const std::vector<char> blank_record(header_.record_length(), ' ');
    for (std::uint32_t i = 0; i < count; ++i) {
        file_.write(record_offset(first) + std::uint64_t{i} * blank_record.size(), blank_record.data(),
                    blank_record.size());
    }
    file_.write(record_offset(first) + std::uint64_t{count} * blank_record.size(), &end_of_table, 1);
}

bool Tox_dbf::append_blank_records(std::uint32_t count) {
    if (!file_.is_open()) return false;
    const std::uint32_t present = record_count();
    if (record_offset(present) > file_.size() || count > no_record - present) {
        file_.report_write_error();
        return false;
    }
    write_blank_records(present, count);
    header_.set_record_count(present + count);
    write_header();
    return true;
}

void Tox_dbf::write_header() { file_.write(0, header_.bytes.data(), header_.bytes.size()); }

void Tox_dbf::rename_field(std::uint32_t index, std::string_view name) {
    if (index >= fields_.size()) return;
    fields_[index].set_name(name);
    file_.write((index + 1) * descriptor_size, fields_[index].bytes.data(), dbf_field::name_size);
}

void Tox_dbf::set_language_driver(std::uint8_t id) {
    if (!file_.is_open()) return;
    header_.bytes[29] = id;
    write_header();
}

}  // namespace ox
