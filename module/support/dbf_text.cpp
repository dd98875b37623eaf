#include "support/dbf_text.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdio>
#include <string_view>

#include "support/text.h"

namespace ox {
namespace {

std::string shared_result;

const char* share(std::string_view text) {
    shared_result = text;
    return shared_result.c_str();
}

template <class Number>
std::string print(const char* conversion, Number value) {
    std::array<char, 512> text;
    const int length = std::snprintf(text.data(), text.size(), conversion, value);
    std::string printed(text.data(), static_cast<std::size_t>(std::clamp(length, 0, 511)));
    // printf follows the locale's decimal point.
    const std::string_view point = std::localeconv()->decimal_point;
    if (const auto place = printed.find(point); place != std::string::npos) {
        printed.replace(place, point.size(), 1, '.');
    }
    return printed;
}

template <class Number>
const char* print_within(std::string_view format, Number value) {
    const auto begin = std::min(format.find('%'), format.size());
    const auto letter = format.find_first_of("diouxXeEfFgGaA", begin);
    const auto end = letter == std::string_view::npos ? begin : letter + 1;
    std::string text(format.substr(0, begin));
    if (end > begin) text += print(std::string(format.substr(begin, end - begin)).c_str(), value);
    return share(text += format.substr(end));
}

}  // namespace

const char* trim_text(const char* text) { return share(text ? trimmed(text) : ""); }

int compare_trimmed(const char* a, const char* b) {
    if (!a || !b) return static_cast<int>(a != nullptr) - static_cast<int>(b != nullptr);
    return compare_no_case(trimmed(a), trimmed(b));
}

bool parse_bool_text(const char* text, bool& value) {
    const auto word = trimmed(text ? text : "");
    const auto is_word = [&](const char* candidate) { return equal_no_case(word, candidate); };
    value = is_word("t") || is_word("true") || is_word("1") || is_word("y");
    return value || is_word("f") || is_word("false") || is_word("0") || is_word("n");
}

const char* format_int(std::int32_t value, const char* format) {
    return print_within(format, static_cast<int>(value));
}

const char* format_double(double value, const char* format) { return print_within(format, value); }

std::optional<std::size_t> find_text(std::span<const std::string> list, const char* text) {
    const auto found =
        std::ranges::find_if(list, [&](const auto& item) { return equal_no_case(item, text ? text : ""); });
    if (found == list.end()) return std::nullopt;
    return static_cast<std::size_t>(found - list.begin());
}

}  // namespace ox
