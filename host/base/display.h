#pragma once
/// Texts on a terminal: how many cells they take, made to fit and harmless. UTF-8; malformed input counts as
/// U+FFFD.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace oxhost {

/// Cells: two for the wide characters of East Asia and for pictures, none for marks that stand on others.
std::size_t display_width(std::string_view text);

/// The text, with "…" at its end where it is wider than `width` cells.
std::string cut_to(std::string_view text, std::size_t width);

/// With blanks behind it up to `width` cells.
std::string padded(std::string text, std::size_t width);

/// Broken between words into lines of at most `width` cells; a longer word stands alone. Line breaks stay.
std::vector<std::string> wrapped(std::string_view text, std::size_t width);

/// Control characters, and those that turn the direction of what follows, spelled out: \t, \n, \x1b, \u202e.
std::string escaped(std::string_view text);

/// Width of the terminal that the standard output is; nothing when it is none. COLUMNS wins.
std::optional<std::size_t> terminal_columns();

}  // namespace oxhost
