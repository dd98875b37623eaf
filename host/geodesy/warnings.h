#pragma once
/// What a user should know before trusting a projection or a reprojection: one line each. [ui]

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language.h"
#include "base/line.h"

namespace oxhost {

/// About a text alone: no datum shift although its ellipsoid is not WGS 84's (GRS 80 counts as such),
/// rotations that are a published shift's with opposite signs, keys that PROJ does not know. `near`, as
/// WGS 84 longitude and latitude, says for which place the size of a missing shift is estimated; without
/// it the projection's origin is taken. An empty text has no warnings, a refused one only its keys'.
std::vector<std::string> warnings_for(std::string_view proj4, language wanted,
                                      std::optional<point> near = {});

/// About a reprojection of `line`, given in `source`: the warnings of both texts at the line's place,
/// each named as source or target and said once; a missing shift only where the other side has another
/// datum; a line that has no place in the target.
std::vector<std::string> warnings_for(std::string_view source, std::string_view target, const polyline& line,
                                      language wanted);

}  // namespace oxhost
