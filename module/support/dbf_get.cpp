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

}  // namespace ox
