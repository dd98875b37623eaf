#pragma once
/// Seven parameters for a change of datum that is known by what it does.

#include <functional>
#include <optional>

#include "base/line.h"
#include "geodesy/crs.h"

namespace oxhost {

/// `to_wgs84` takes longitude, latitude in degrees from Greenwich on `shape` to WGS 84. The parameters give
/// its places within 2 mm all over the Earth; nothing when no seven parameters do.
std::optional<towgs84> fitted_shift(const ellipsoid& shape, const std::function<point(point)>& to_wgs84);

}  // namespace oxhost
