#pragma once
/// Datum shifts to WGS 84 that the EPSG data set publishes, as far as `towgs84` can express them:
/// geocentric translations and seven-parameter Helmert transformations, no grids. [ui]

#include <optional>
#include <string>
#include <vector>

#include "base/line.h"
#include "geodesy/crs.h"

namespace oxhost {

struct published_shift {
    std::string code;  ///< such as "EPSG:5044"
    std::string name;  ///< such as "Pulkovo 1942 to WGS 84 (20)"
    towgs84 values;
    std::optional<double> accuracy;   ///< metres
    double west, south, east, north;  ///< area of use in degrees; west > east across the date line
    bool current = true;              ///< false: EPSG has replaced or withdrawn it

    bool covers(point longitude_latitude) const;
};

/// From the datum of a CRS, in the order in which PROJ prefers them for the CRS's area of use; those that are
/// not current at the end.
std::vector<published_shift> published_shifts(const PJ* crs_object);

/// From every datum on this ellipsoid, withdrawn ones too; lent until the next call.
const std::vector<published_shift>& published_shifts(const ellipsoid& shape);

/// The one that PROJ itself takes at `place` (longitude, latitude): of those that cover the place the most
/// accurate; the first of all when none covers it. One that is not current only where no other covers it.
const published_shift* best_shift(const std::vector<published_shift>& shifts, point place);

/// Those with these parameters from datums on the ellipsoid: the current ones, else the others.
std::vector<published_shift> publications_of(const towgs84& values, const ellipsoid& shape);

/// Same numbers as published, to the last digit that a text of rounded parameters may lose.
bool same_shift(const towgs84& a, const towgs84& b);
/// Same translation and scale, rotations with opposite signs (not all of them zero).
bool rotations_reversed(const towgs84& a, const towgs84& b);

}  // namespace oxhost
