#pragma once
/// Lines: `section_line` is the host side of the opaque handle "pv".

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace oxhost {

/// x is easting or longitude, y northing or latitude; metres or degrees, as the projection says.
struct point {
    double x;
    double y;
    friend bool operator==(const point&, const point&) = default;
};

using polyline = std::vector<point>;

inline bool is_finite(const point& place) { return std::isfinite(place.x) && std::isfinite(place.y); }

/// A line with what its vertices carry beside their place: heights and measures, which no projection touches.
struct section_line {
    polyline xy;
    std::vector<double> z;  ///< one per vertex, or none at all
    std::vector<double> m;  ///< likewise

    section_line() = default;
    section_line(polyline places, std::vector<double> heights = {}, std::vector<double> measures = {})
        : xy(std::move(places)), z(std::move(heights)), m(std::move(measures)) {}
    friend bool operator==(const section_line&, const section_line&) = default;
};

/// Smallest rectangle around points; empty (minimum above maximum) at first. Non-finite points are left out.
struct extent {
    double min_x = std::numeric_limits<double>::infinity();
    double min_y = std::numeric_limits<double>::infinity();
    double max_x = -std::numeric_limits<double>::infinity();
    double max_y = -std::numeric_limits<double>::infinity();

    bool empty() const { return min_x > max_x; }
    double width() const { return max_x - min_x; }
    double height() const { return max_y - min_y; }
    point middle() const { return {(min_x + max_x) / 2, (min_y + max_y) / 2}; }

    void add(const extent& other) {
        min_x = std::min(min_x, other.min_x);
        min_y = std::min(min_y, other.min_y);
        max_x = std::max(max_x, other.max_x);
        max_y = std::max(max_y, other.max_y);
    }
    void add(const point& place) {
        if (is_finite(place)) add(extent{place.x, place.y, place.x, place.y});
    }
};

/// The vertex at which a change of a line gave up.
struct vertex_failure {
    std::size_t vertex;  ///< counted from 0
    point at;            ///< as it was before
    std::string reason;
};

}  // namespace oxhost
