#include "base/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace oxhost {
namespace {

template <class Number>
std::optional<Number> parse(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

}  // namespace

std::optional<double> parse_number(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto number = parse<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<std::int64_t> parse_whole_number(std::string_view text) { return parse<std::int64_t>(text); }

std::string number_text(double number) {
    if (number == 0) return "0";
    // Without an exponent wherever that is readable: some readers take the "+" of "1e+07" for a new key.
    const double size = std::abs(number);
    const auto form = size >= 1e-7 && size < 1e15 ? std::chars_format::fixed : std::chars_format::scientific;
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, form).ptr;
    return {digits.data(), end};
}

}  // namespace oxhost
