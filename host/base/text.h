#pragma once
/// Texts: UTF-8 inside the host and wide at its border, and small things that are done to them whatever the
/// locale. Malformed input gives U+FFFD.

#include <algorithm>
#include <cstddef>
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

std::string to_utf8(std::wstring_view text);
std::wstring to_wide(std::string_view text);

/// For the pointers that cross the border: null reads as empty.
std::string to_utf8(const wchar_t* text);

/// Characters of a well-formed text, as columns and pictures need their number.
std::size_t character_count(std::string_view text);

}  // namespace oxhost
