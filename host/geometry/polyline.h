#pragma once
/// The line type that crosses the host's modules: the host side of the opaque handle "pv".

#include <vector>

namespace oxhost {

/// x is easting or longitude, y northing or latitude; metres or degrees, as the projection says.
struct point {
    double x;
    double y;
    friend bool operator==(const point&, const point&) = default;
};

using polyline = std::vector<point>;

}  // namespace oxhost
