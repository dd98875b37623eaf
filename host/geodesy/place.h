#pragma once
/// Where on the Earth a coordinate system is used. Longitude, latitude in degrees. [ui]

#include <optional>

#include "base/line.h"
#include "geodesy/proj_context.h"

namespace oxhost {

struct geographic_area {
    double west = 0, south = 0, east = 0, north = 0;  ///< west > east across the date line

    bool covers(point longitude_latitude) const;
    point middle() const;
    /// `side` times `side` points from edge to edge.
    polyline grid(int side) const;
};

/// A degree to each side.
geographic_area around(point place);

/// What the database says of the object; nothing without a published area.
std::optional<geographic_area> area_of(const PJ* object);

/// The EPSG system that a definition without code, such as a projection file's, names; null when it is none
/// for sure. `system` is two-dimensional and carries no shift.
pj_ptr recognised(const PJ* system);

/// The EPSG system of the datum under a system, found by its code, by the name of the datum (ESRI's names
/// too), or null. Longitudes count from the datum's own meridian.
pj_ptr recognised_base(const PJ* system);

/// Where a system is used: its published area, that of the system it names, or the surroundings of its origin
/// within the area of its datum. A local grid, whose false origin lies near its country, is found by that.
geographic_area area_of_use(const PJ* system);

}  // namespace oxhost
