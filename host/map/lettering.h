#pragma once
/// How much room texts take in a picture, without asking for fonts.

#include <string>
#include <string_view>

namespace oxhost::map {

inline constexpr double text_size = 11;    ///< of captions and tables, in the picture's units
inline constexpr double line_height = 14;  ///< of a line of such a text

/// About how long a text comes out in the picture's face, rather too long than too short.
double width_of(std::string_view text, double size = text_size);

/// The text, or as much of it as fits with "…" at the end.
std::string shortened(std::string_view text, double width, double size = text_size);

}  // namespace oxhost::map
