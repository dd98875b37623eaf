#pragma once
/// A rectangle of the picture that shows a part of the world in longitude and latitude.

#include <string>

#include "base/line.h"

namespace oxhost::app {

/// Degrees; east may pass 180 where lines cross the date line.
using geographic_extent = extent;

struct rectangle {
    double x, y, width, height;

    bool overlaps(const rectangle& other) const {
        return x < other.x + other.width && other.x < x + width && y < other.y + other.height &&
               other.y < y + height;
    }
    bool contains(const rectangle& other) const {
        return other.x >= x && other.y >= y && other.x + other.width <= x + width &&
               other.y + other.height <= y + height;
    }
};

class map_frame {
public:
    /// Shows `content` with a margin, widened to fill `place`: a degree of longitude is as wide as it is at
    /// the middle latitude.
    map_frame(const rectangle& place, const geographic_extent& content);

    const rectangle& place() const { return place_; }
    const geographic_extent& shown() const { return shown_; }
    point to_picture(const point& degrees) const;
    rectangle to_picture(const geographic_extent& degrees) const;

    /// Meridians and parallels with their degrees along the edges, on a white ground.
    std::string graticule() const;
    /// A bar of a round length, right for the middle latitude.
    std::string scale_bar() const;
    rectangle scale_bar_place() const;

private:
    double pixels_per_degree_north() const { return place_.height / (shown_.max_y - shown_.min_y); }

    double scale_bar_metres() const;
    double metres_per_pixel() const;

    rectangle place_;
    geographic_extent shown_;
};

}  // namespace oxhost::app
