#include "projection/proj4_param.h"

#include <cmath>
#include <type_traits>

#include "support/numbers.h"
#include "support/text.h"

namespace ox {
namespace {

constexpr int significant_digits = 12;
constexpr double tolerance = 1e-6;

using towgs84_values = std::array<double, 7>;

void append_value(std::string& out, const std::string& value) { out += value; }
void append_value(std::string& out, double value) { append_general(out, value, significant_digits); }
void append_value(std::string& out, std::int32_t value) { append_int(out, value); }
void append_value(std::string& out, const towgs84_values& values) {
    for (const double value : values) {
        append_value(out, value);
        out += ',';
    }
    out.pop_back();
}

bool scan(std::string_view text, std::string& value) {
    value = text;
    return !text.empty();
}

template <class T>
bool take(const std::optional<T>& scanned, T& value) {
    if (scanned) value = *scanned;
    return scanned.has_value();
}

bool scan(std::string_view text, double& value) { return take(scan_double(text), value); }
bool scan(std::string_view text, std::int32_t& value) { return take(scan_int(text), value); }
bool scan(std::string_view, bool& value) { return value = true; }
bool scan(std::string_view text, towgs84_values& values) {
    for (double& value : values) {
        const auto comma = text.find(',');
        value = scan_double(text.substr(0, comma)).value_or(0);
        text = comma == std::string_view::npos ? std::string_view() : text.substr(comma + 1);
    }
    return true;
}

bool same(const std::string& a, const std::string& b) { return equal_no_case(trimmed(a), trimmed(b)); }
bool same(double a, double b) { return std::abs(a - b) < tolerance; }
bool same(std::int32_t a, std::int32_t b) { return a == b; }
bool same(bool a, bool b) { return a == b; }
bool same(const towgs84_values& a, const towgs84_values& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (!same(a[i], b[i])) return false;
    }
    return true;
}

}  // namespace

bool Tox_proj4_param::begin_text() {
    text_.clear();
    if (present) {
        text_ += '+';
        text_ += name_;
    }
    return present;
}

template <class T>
const std::string& Tox_proj4_param_of<T>::format_text() {
    if (begin_text()) {
        if constexpr (!std::is_same_v<T, bool>) {
            text_ += '=';
            append_value(text_, value_);
        }
        text_ += ' ';
    }
    return text_;
}

template <class T>
void Tox_proj4_param_of<T>::parse_value(std::string_view value) {
    present = scan(value, value_);
}

template <class T>
bool Tox_proj4_param_of<T>::equals(const Tox_proj4_param_of& other) const {
    return present == other.present && (!present || same(value_, other.value_));
}

template class Tox_proj4_param_of<std::string>;
template class Tox_proj4_param_of<double>;
template class Tox_proj4_param_of<std::int32_t>;
template class Tox_proj4_param_of<bool>;
template class Tox_proj4_param_of<towgs84_values>;

}  // namespace ox
