#pragma once
/// A projection text as other GIS programs take it up from a file. [ui]

#include <optional>
#include <string>

#include "base/line.h"

namespace oxhost {

struct gis_crs {
    std::string name;
    std::string wkt;          ///< WKT 1 as GDAL writes it, datum shift included
    std::optional<int> epsg;  ///< its code, where programs that go by the code put lines at the same place
};

/// Nothing for a text that PROJ refuses or that has no WKT 1. `bounds` is where the lines lie, in the text's
/// units: a code stands for all shifts of its datum, and which one a program takes depends on the place.
std::optional<gis_crs> crs_for_gis(const std::string& proj4, const extent& bounds);

}  // namespace oxhost
