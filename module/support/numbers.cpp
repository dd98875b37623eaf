#include "support/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace ox {
namespace {

struct signed_text {
    bool negative;
    std::string_view digits;  // empty when no number can follow
};

signed_text split_sign(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\n\v\f\r");
    if (first == std::string_view::npos) return {false, {}};
    text.remove_prefix(first);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);
    if (!text.empty() && text.front() == '-') return {false, {}};  // from_chars would take a second one
    return {negative, text};
}

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_hex_digit(char c) { return is_digit(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f'); }

// Decides between overflow and underflow of a number that from_chars found out of range: the place of
// the leading digit, in digits before the point, scaled by the exponent.
bool is_huge(std::string_view number, bool hex) {
    const auto is_number_digit = hex ? is_hex_digit : is_digit;
    std::int64_t place = 0;
    bool point = false, significant = false;
    std::size_t i = 0;
    for (; i < number.size() && (number[i] == '.' || is_number_digit(number[i])); ++i) {
        if (number[i] == '.') {
            point = true;
            continue;
        }
        significant = significant || number[i] != '0';
        if (significant && !point) ++place;
        if (!significant && point) --place;
    }
    if (hex) place *= 4;
    const auto exponent = i < number.size() ? scan_int(number.substr(i + 1)).value_or(0) : 0;
    return place + exponent > 0;
}

}  // namespace

std::optional<std::int32_t> scan_int(std::string_view text) {
    using limits = std::numeric_limits<std::int32_t>;
    const auto [negative, digits] = split_sign(text);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error == std::errc::invalid_argument) return std::nullopt;
    if (error != std::errc()) value = std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(negative ? -value : value, limits::min(), limits::max()));
}

std::optional<double> scan_double(std::string_view text) {
    auto [negative, number] = split_sign(text);
    const bool hex = number.size() >= 2 && number[0] == '0' && (number[1] | 0x20) == 'x';
    if (hex) {
        number.remove_prefix(2);
        if (number.empty() || (number[0] != '.' && !is_hex_digit(number[0]))) return std::nullopt;
    }
    double value = 0;
    const auto format = hex ? std::chars_format::hex : std::chars_format::general;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value, format);
    if (error == std::errc::invalid_argument) return std::nullopt;
    if (error != std::errc()) value = is_huge(number, hex) ? std::numeric_limits<double>::infinity() : 0.0;
    return negative ? -value : value;
}

void append_int(std::string& out, std::int32_t value) {
    std::array<char, 16> digits;
    out.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr);
}

void append_general(std::string& out, double value, int precision) {
    std::array<char, 64> digits;
    const auto first = digits.data(), last = first + digits.size();
    // Most numbers of a projection are whole; below a million "%g" with 6 digits or more writes them plainly.
    const bool plain = precision >= 6 && std::abs(value) < (precision >= 12 ? 1e12 : 1e6);
    if (plain && value == std::trunc(value) && value != 0) {
        out.append(first, std::to_chars(first, last, static_cast<std::int64_t>(value)).ptr);
    } else {
        out.append(first, std::to_chars(first, last, value, std::chars_format::general, precision).ptr);
    }
}

std::string fixed_text(double value, int width, int decimals) {
    std::array<char, 640> digits;  // 309 digits before the point, 255 decimals, a sign and the point
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                   std::chars_format::fixed, std::clamp(decimals, 0, 255))
                         .ptr;
    std::string text(digits.data(), end);
    const auto wanted = static_cast<std::size_t>(std::max(width, 0));
    if (text.size() < wanted) text.insert(0, wanted - text.size(), ' ');
    return text;
}

std::int32_t truncated(double value) {
    using limits = std::numeric_limits<std::int32_t>;
    const bool fits = value > -2147483649.0 && value < 2147483648.0;
    return fits ? static_cast<std::int32_t>(value) : limits::min();
}

}  // namespace ox
