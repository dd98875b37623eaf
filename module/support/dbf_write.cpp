#include <algorithm>

#include "support/dbf.h"
#include "support/numbers.h"

namespace ox {
namespace {

constexpr std::uint64_t largest_block = 0xFFFF;  // header and record lengths have 16 bits
constexpr std::uint64_t descriptor_size = 32;
constexpr char end_of_descriptors = '\x0D';
constexpr char end_of_table = '\x1A';

// The first bytes of a binary number; zeros behind it where the column is longer.
template <class Number>
void put_bytes(std::span<char> column, Number value) {
    const auto size = std::min(column.size(), sizeof value);
    std::fill(std::copy_n(reinterpret_cast<const char*>(&value), size, column.begin()), column.end(), '\0');
}

void put_text(std::span<char> column, std::string_view text) {
    const auto end = std::copy_n(text.begin(), std::min(text.size(), column.size()), column.begin());
    std::fill(end, column.end(), ' ');
}

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

bool Tox_dbf::write_record(std::uint32_t index) {
    if (!file_.is_open()) return false;
    if (index >= record_count()) {
        file_.report_write_error();
        return false;
    }
    return file_.write(record_offset(index), record_.data(), record_.size());
}

void Tox_dbf::write_back() {
    if (dirty_ && current_ != no_record) write_record(current_);
    dirty_ = false;
}

// All changes of the record go through here.
std::span<char> Tox_dbf::writable_column(std::uint32_t index) {
    const auto& column = field(index);
    const std::uint64_t end = std::uint64_t{column.displacement()} + column.length();
    if (end > record_.size()) return {};
    dirty_ = true;
    loaded_ = record_.size();
    return {record_.data() + column.displacement(), column.length()};
}

void Tox_dbf::set_text(std::uint32_t index, std::string_view text) { put_text(writable_column(index), text); }

void Tox_dbf::set_int(std::uint32_t index, std::int32_t value) {
    switch (field(index).type()) {
        case 'B':
            return set_raw_double(index, value);
        case 'I':
            return set_raw_int(index, value);
        default:
            return set_number(index, value);
    }
}

void Tox_dbf::set_double(std::uint32_t index, double value) {
    switch (field(index).type()) {
        case 'B':
            return set_raw_double(index, value);
        case 'I':
            return set_raw_int(index, truncated(value));
        default:
            return set_number(index, value);
    }
}

// Right-aligned; a number that is too long loses its last digits.
void Tox_dbf::set_number(std::uint32_t index, double value) {
    const auto& column = field(index);
    set_text(index, fixed_text(value, static_cast<int>(column.length()), column.decimals()));
}

void Tox_dbf::set_from_text(std::uint32_t index, std::string_view text) {
    switch (field(index).type()) {
        case 'B':
            return set_raw_double(index, scan_double(text).value_or(0));
        case 'I':
            return set_raw_int(index, scan_int(text).value_or(0));
        default:
            return set_text(index, text);
    }
}

void Tox_dbf::set_raw_double(std::uint32_t index, double value) { put_bytes(writable_column(index), value); }

void Tox_dbf::set_raw_int(std::uint32_t index, std::int32_t value) {
    put_bytes(writable_column(index), value);
}

}  // namespace ox
