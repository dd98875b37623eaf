#pragma once
/// Where on the widget a place of the map's system lies: uniform scale, north up.

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <algorithm>

#include "base/line.h"

namespace oxhost::desktop {

struct map_scale {
    point middle{0, 0};            ///< of the widget, in the map's units
    double units_per_pixel = 0.5;  ///< the map's units
    double stretch = 1;  ///< how much wider than high a unit is to be drawn: below 1 for degrees far north
    QSize size{1, 1};

    QPointF to_widget(point place) const {
        return {size.width() / 2.0 + (place.x - middle.x) * stretch / units_per_pixel,
                size.height() / 2.0 - (place.y - middle.y) / units_per_pixel};
    }
    point to_map(QPointF pixel) const {
        return {middle.x + (pixel.x() - size.width() / 2.0) * units_per_pixel / stretch,
                middle.y - (pixel.y() - size.height() / 2.0) * units_per_pixel};
    }
    extent shown() const {
        extent all;
        all.add(to_map({0, 0}));
        all.add(to_map({static_cast<double>(size.width()), static_cast<double>(size.height())}));
        return all;
    }
    /// The place under the pixel stays there.
    void zoom(double factor, QPointF around) {
        const point kept = to_map(around);
        units_per_pixel /= factor;
        const point now = to_map(around);
        middle.x += kept.x - now.x;
        middle.y += kept.y - now.y;
    }
    /// All of it is shown, with a margin.
    void fit(const extent& wanted) {
        if (wanted.empty()) return;
        middle = wanted.middle();
        const double wide = wanted.width() * stretch / size.width(), high = wanted.height() / size.height();
        units_per_pixel = std::max({wide, high, 1e-9}) * 1.1;
    }
};

}  // namespace oxhost::desktop
