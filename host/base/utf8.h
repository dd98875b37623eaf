#pragma once
/// UTF-8 inside the host, wide texts at its border. Malformed input gives U+FFFD.

#include <cstddef>
#include <string>
#include <string_view>

namespace oxhost {

std::string to_utf8(std::wstring_view text);
std::wstring to_wide(std::string_view text);

/// For the pointers that cross the border: null reads as empty.
std::string to_utf8(const wchar_t* text);

/// Characters of a well-formed text, as columns and pictures need their number.
std::size_t character_count(std::string_view text);

}  // namespace oxhost
