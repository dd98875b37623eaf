#pragma once
/// Definitions from elsewhere as proj4 texts. The datum comes along: where PROJ's own text has none, or
/// one for a wider area, the text carries the `towgs84` of the shift that PROJ takes to WGS 84 in the
/// middle of the system's area of use (grids left aside). A named datum of the proj4 format stays. [ui]

#include <optional>
#include <string>
#include <string_view>

#include "base/line.h"
#include "geodesy/crs.h"

namespace oxhost {

/// "EPSG:28407", any other authority's code, a name, WKT or PROJJSON that PROJ understands, or a proj4
/// text (which comes back mended). Nothing when it is unknown or no 2D map or lon/lat system. `near`,
/// longitude and latitude of what lies in the system, chooses the shift of one whose area nobody published.
std::optional<std::string> import_crs(std::string_view identifier, std::optional<point> near = {});

/// The horizontal, two-dimensional part of what the identifier names; null as above, and for a proj4 text.
pj_ptr horizontal_system(const std::string& identifier);

/// The same for a CRS at hand.
std::optional<std::string> proj4_of(const PJ* crs_object, std::optional<point> near = {});

/// "EPSG:n" when the database has this very system, its datum shift being one that is published for its
/// datum; nothing otherwise.
std::optional<std::string> epsg_code(std::string_view proj4);

/// The code only of a text that is the very system that the code stands for, shift and all, since readers of
/// a code take the shift of their own choice; empty for others.
std::string exact_code(std::string_view proj4);

}  // namespace oxhost
