// Columns of the buffered record, as texts and numbers.

#include <algorithm>

#include "support/dbf.h"
#include "support/dbf_text.h"
#include "support/numbers.h"

namespace ox {
namespace {

// Binary columns may be shorter or longer than their number: what is missing counts as zero bytes.
template <class Number>
Number from_bytes(std::string_view bytes) {
    Number value{};
    std::copy_n(bytes.data(), std::min(bytes.size(), sizeof value), reinterpret_cast<char*>(&value));
    return value;
}

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

}  // namespace

// All reads of the record go through here.
std::string_view Tox_dbf::column(std::uint32_t index) const {
    const auto& column = field(index);
    const std::uint64_t end = std::uint64_t{column.displacement()} + column.length();
    if (end > loaded_) return {};
    return {record_.data() + column.displacement(), column.length()};
}

const char* Tox_dbf::get_text(std::uint32_t index) {
    std::string_view text = column(index);
    if (!text.empty() && field(index).type() == 'B') text = format_double(from_bytes<double>(text));
    if (!text.empty() && field(index).type() == 'I') text = format_int(from_bytes<std::int32_t>(text));
    *std::copy(text.begin(), text.end(), scratch_.begin()) = '\0';
    return scratch_.data();
}

std::int32_t Tox_dbf::get_int(std::uint32_t index) const {
    switch (field(index).type()) {
        case 'B':
            return truncated(get_raw_double(index));
        case 'I':
            return get_raw_int(index);
        default:
            return scan_int(column(index)).value_or(0);
    }
}

double Tox_dbf::get_double(std::uint32_t index) const {
    switch (field(index).type()) {
        case 'B':
            return get_raw_double(index);
        case 'I':
            return get_raw_int(index);
        default:
            return scan_double(column(index)).value_or(0);
    }
}

bool Tox_dbf::get_bool(std::uint32_t index) const {
    switch (field(index).type()) {
        case 'B':
            return get_raw_double(index) != 0;
        case 'I':
            return get_raw_int(index) != 0;
        default: {
            bool value = false;
            return parse_bool_text(std::string(column(index)).c_str(), value) && value;
        }
    }
}

double Tox_dbf::get_raw_double(std::uint32_t index) const { return from_bytes<double>(column(index)); }

std::int32_t Tox_dbf::get_raw_int(std::uint32_t index) const {
    return from_bytes<std::int32_t>(column(index));
}

// All changes of the record go through here.
std::span<char> Tox_dbf::writable_column(std::uint32_t index) {
    const auto& column = field(index);
    const std::uint64_t end = std::uint64_t{column.displacement()} + column.length();
    if (index >= fields_.size() || end > record_.size()) return {};
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
