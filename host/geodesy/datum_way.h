#pragma once
/// Ways of a coordinate system to WGS 84 as PJ objects, without a text between. [ui]

#include <optional>

#include "geodesy/crs.h"
#include "geodesy/place.h"

namespace oxhost {

/// The geographic system with which all shifts end.
PJ* wgs84_system();

/// What PROJ takes between two systems; x (easting or longitude) first, degrees. Null without any.
pj_ptr easting_first_way(const PJ* from, const PJ* to);

/// The operation to WGS 84 without grids that is the most accurate of those for the middle of `area`: one
/// that is published for the datum; where none is, one by way of a third datum; else PROJ's first. Null
/// without any.
pj_ptr published_operation(const PJ* system, const geographic_area& area);

/// The seven parameters of an operation from a geographic system. Those of a single Helmert transformation
/// are its own; what is several or of another form gets the parameters that give the same places within 2 mm
/// anywhere, or none.
std::optional<towgs84> shift_of(const PJ* operation);

}  // namespace oxhost
