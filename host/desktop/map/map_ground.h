#pragma once
/// What lies under and around the lines: land, graticule, scale bar. [ui]

#include <QPainter>
#include <memory>
#include <string>
#include <vector>

#include "desktop/map/map_scale.h"
#include "geodesy/transformation.h"

namespace oxhost::desktop {

class map_ground {
public:
    /// `around` is where the lines lie, in the map's units: land is shown some way beyond.
    void begin(const std::string& system, const extent& around);

    void draw_land(QPainter& painter, const map_scale& scale, const QColor& fill, const QColor& coast) const;
    void draw_graticule(QPainter& painter, const map_scale& scale, const QColor& line,
                        const QColor& text) const;
    void draw_scale_bar(QPainter& painter, const map_scale& scale, const QColor& colour) const;

    point to_map(point degrees) const;  ///< not finite where there is no place
    point to_degrees(point on_map) const;

private:
    std::shared_ptr<const transformation> from_degrees_;  ///< null where the map is in degrees
    std::vector<polyline> land_;                          ///< closed rings in the map's system
};

}  // namespace oxhost::desktop
