#pragma once
/// Plain operations on narrow texts: letters compare by ASCII case only, whatever the locale says.

#include <algorithm>
#include <string_view>

namespace ox {

/// What tables and proj4 texts are padded with.
inline constexpr std::string_view blanks = " \r\t\n";

constexpr std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

constexpr char lower_case(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr bool equal_no_case(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return lower_case(x) == lower_case(y); });
}

/// Below, at or above 0 as `a` sorts before, with or after `b`; letters beyond ASCII sort after it.
constexpr int compare_no_case(std::string_view a, std::string_view b) {
    const auto rank = [](char c) { return static_cast<int>(static_cast<unsigned char>(lower_case(c))); };
    const auto shared = std::min(a.size(), b.size());
    for (std::string_view::size_type i = 0; i < shared; ++i) {
        if (const int order = rank(a[i]) - rank(b[i])) return order;
    }
    return static_cast<int>(a.size() > b.size()) - static_cast<int>(a.size() < b.size());
}

}  // namespace ox
