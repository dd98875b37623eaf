#pragma once
/// Numbers as texts, whatever the locale.

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace oxhost {

namespace detail {

template <class Number>
std::optional<Number> parse_all(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace detail

/// A whole text as a finite number, a "+" in front allowed; nothing when something is left over.
inline std::optional<double> parse_number(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto number = detail::parse_all<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

/// A whole text of digits, perhaps after a "-".
inline std::optional<std::int64_t> parse_whole_number(std::string_view text) {
    return detail::parse_all<std::int64_t>(text);
}

/// Shortest digits that read back as the same number.
inline std::string number_text(double number) {
    if (number == 0) return "0";
    // Without an exponent wherever that is readable: some readers take the "+" of "1e+07" for a new key.
    const double size = std::abs(number);
    const auto form = size >= 1e-7 && size < 1e15 ? std::chars_format::fixed : std::chars_format::scientific;
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, form).ptr;
    return {digits.data(), end};
}

}  // namespace oxhost
