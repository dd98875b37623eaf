#pragma once
/// Small things that are done to texts, whatever the locale.

#include <algorithm>
#include <string>
#include <string_view>

namespace oxhost {

inline constexpr std::string_view blanks = " \t\r\n\v\f";

/// Without blanks at either end.
inline std::string_view trimmed(std::string_view text) {
    const auto start = text.find_first_not_of(blanks);
    if (start == text.npos) return {};
    return text.substr(start, text.find_last_not_of(blanks) + 1 - start);
}

/// ASCII letters in lower case; all other bytes stay.
inline std::string lower(std::string_view text) {
    std::string lowered(text);
    std::ranges::transform(lowered, lowered.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return lowered;
}

/// Adds `item` to a list in one line, with `separator` between items.
inline void append_item(std::string& list, std::string_view item, std::string_view separator = ", ") {
    if (!list.empty()) list += separator;
    list += item;
}

}  // namespace oxhost
