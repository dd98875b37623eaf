#pragma once
/// Ways of a coordinate system to WGS 84 as PROJ itself has them, without a text between: x, y (easting or
/// longitude first) in, longitude, latitude in degrees out. [ui]

#include "geodesy/proj_context.h"

namespace oxhost {

/// By the system's own shift, or by what PROJ takes for its datum from place to place. Null without any.
pj_ptr bound_way_to_wgs84(const PJ* system);

/// By the one operation of the EPSG data set without grids that import takes: the most accurate of those that
/// cover the middle of the system's area of use. Null when none is published.
pj_ptr published_way_to_wgs84(const PJ* system);

}  // namespace oxhost
