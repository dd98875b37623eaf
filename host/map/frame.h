#pragma once
/// A rectangle of the picture that shows a part of the world in longitude and latitude.

#include <string>

#include "base/language.h"
#include "base/line.h"
#include "map/regions.h"
#include "map/svg.h"

namespace oxhost::map {

class frame {
public:
    /// Shows `content`, which is not empty, with a margin, widened to fill `place`: a degree of longitude is
    /// as wide as it is at the middle latitude.
    frame(const rectangle& place, const geographic_extent& content);

    const rectangle& place() const { return place_; }
    const geographic_extent& shown() const { return shown_; }
    point to_picture(const point& degrees) const;
    rectangle to_picture(const geographic_extent& degrees) const;

    /// Meridians and parallels with their degrees along the edges, and the edges.
    std::string graticule() const;
    /// A bar of a round length, right for the middle latitude.
    std::string scale_bar(language wanted) const;
    rectangle scale_bar_place() const;
    double scale_bar_metres() const;

private:
    double pixels_per_degree_north() const { return place_.height / shown_.height(); }
    double metres_per_pixel() const;

    rectangle place_;
    geographic_extent shown_;
};

}  // namespace oxhost::map
