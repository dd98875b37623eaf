#pragma once
/// Proj4 texts of other makers as this host reads them. [ui]

#include <string>
#include <string_view>

namespace oxhost {

/// The text, trimmed, in the meaning that its keys have: a named datum beside another ellipsoid than its own
/// gets its own; numbers such as `4e+05`, which some readers split at the "+", are written without exponent;
/// `lonlat`, `latlon` and `latlong` are `longlat`. A text in which there is nothing to mend stays as written.
std::string mended(std::string_view proj4);

/// One text of several lines; "#" begins a comment.
std::string joined_lines(std::string_view text);

}  // namespace oxhost
