#include "desktop/map/map_ground.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "desktop/map/projected_lines.h"
#include "desktop/text.h"
#include "geodesy/measure.h"
#include "map/land.h"

namespace oxhost::desktop {

namespace {

constexpr double nowhere = std::numeric_limits<double>::quiet_NaN();

/// 1, 2 or 5 times a power of ten, not above.
double round_below(double value) {
    const double power = std::pow(10, std::floor(std::log10(value)));
    return value >= 5 * power ? 5 * power : value >= 2 * power ? 2 * power : power;
}

/// Steps of degrees that people read.
double step_of(double degrees) {
    for (const double step : {30.0, 20.0, 10.0, 5.0, 2.0, 1.0, 0.5, 0.2, 0.1, 0.05, 0.02, 0.01, 0.005, 0.002})
        if (degrees / step >= 4) return step;
    return 0.001;
}

QString degrees_text(double value, char positive, char negative) {
    return QString::number(std::abs(value), 'g', 7) + QChar(0x00b0) + QChar(value < 0 ? negative : positive);
}

}  // namespace

void map_ground::begin(const std::string& system, const extent& around) {
    from_degrees_.reset();
    if (system != map_degrees) from_degrees_ = transformation::between(map_degrees, system);
    extent degrees{-180, -90, 180, 90};
    if (from_degrees_) {
        degrees = {};
        for (const double x : {around.min_x, around.middle().x, around.max_x})
            for (const double y : {around.min_y, around.middle().y, around.max_y})
                degrees.add(to_degrees({x, y}));
        if (degrees.empty()) return land_.clear();
        degrees = {degrees.min_x - 15, std::max(-85.0, degrees.min_y - 15), degrees.max_x + 15,
                   std::min(85.0, degrees.max_y + 15)};
    }
    land_ = map::land_within(degrees);
    if (from_degrees_)
        std::erase_if(land_, [&](polyline& ring) { return from_degrees_->apply(ring).has_value(); });
}

point map_ground::to_map(point degrees) const {
    if (!from_degrees_) return degrees;
    polyline place{degrees};
    return from_degrees_->apply(place) ? point{nowhere, nowhere} : place.front();
}

point map_ground::to_degrees(point on_map) const {
    if (!from_degrees_) return on_map;
    polyline place{on_map};
    from_degrees_->bring_back(place);
    return place.front();
}

void map_ground::draw_land(QPainter& painter, const map_scale& scale, const QColor& fill,
                           const QColor& coast) const {
    painter.setPen(QPen(coast, 0));
    painter.setBrush(fill);
    const extent shown = scale.shown();
    QPolygonF drawn;
    for (const polyline& ring : land_) {
        extent bounds;
        for (const point& each : ring) bounds.add(each);
        if (bounds.max_x < shown.min_x || bounds.min_x > shown.max_x || bounds.max_y < shown.min_y ||
            bounds.min_y > shown.max_y)
            continue;
        drawn.clear();
        for (const point& each : ring) {
            const QPointF at = scale.to_widget(each);
            if (drawn.isEmpty() || (at - drawn.back()).manhattanLength() > 1) drawn << at;
        }
        painter.drawPolygon(drawn);
    }
    painter.setBrush(Qt::NoBrush);
}

void map_ground::draw_graticule(QPainter& painter, const map_scale& scale, const QColor& line,
                                const QColor& text) const {
    extent degrees;
    const extent shown = scale.shown();
    for (int i = 0; i <= 4; ++i)
        for (int j = 0; j <= 4; ++j)
            degrees.add(
                to_degrees({shown.min_x + shown.width() * i / 4, shown.min_y + shown.height() * j / 4}));
    if (degrees.empty()) return;
    degrees.min_y = std::max(degrees.min_y, -90.0);
    degrees.max_y = std::min(degrees.max_y, 90.0);
    constexpr int pieces = 40;
    const auto draw = [&](point from, point to, const QString& name, bool meridian) {
        QPolygonF path;
        for (int i = 0; i <= pieces; ++i) {
            const double t = static_cast<double>(i) / pieces;
            const point at = to_map({std::lerp(from.x, to.x, t), std::lerp(from.y, to.y, t)});
            if (is_finite(at)) path << scale.to_widget(at);
        }
        painter.setPen(QPen(line, 0, Qt::DotLine));
        painter.drawPolyline(path);
        painter.setPen(text);
        for (const QPointF& at : path) {  // named where it enters the widget, below or left
            if (!QRectF(QPointF(), QSizeF(scale.size)).contains(at)) continue;
            painter.drawText(meridian ? QPointF(at.x() + 3, scale.size.height() - 5) : QPointF(3, at.y() - 3),
                             name);
            break;
        }
    };
    const double step_x = step_of(degrees.width()), step_y = step_of(degrees.height());
    const auto first = [](double from, double step) { return static_cast<long>(std::ceil(from / step)); };
    const auto last = [](double to, double step) { return static_cast<long>(std::floor(to / step)); };
    for (long i = first(degrees.min_x, step_x); i <= last(degrees.max_x, step_x); ++i) {
        const double x = static_cast<double>(i) * step_x;
        draw({x, degrees.min_y}, {x, degrees.max_y}, degrees_text(x, 'E', 'W'), true);
    }
    for (long i = first(degrees.min_y, step_y); i <= last(degrees.max_y, step_y); ++i) {
        const double y = static_cast<double>(i) * step_y;
        draw({degrees.min_x, y}, {degrees.max_x, y}, degrees_text(y, 'N', 'S'), false);
    }
}

/// Right for the middle of the widget.
void map_ground::draw_scale_bar(QPainter& painter, const map_scale& scale, const QColor& colour) const {
    const double half = 50, y = scale.size.height() / 2.0, x = scale.size.width() / 2.0;
    const point from = to_degrees(scale.to_map({x - half, y})), to = to_degrees(scale.to_map({x + half, y}));
    if (!is_finite(from) || !is_finite(to) || std::abs(from.y) > 90) return;
    const double metres_per_pixel = ground_distance(from, to) / (2 * half);
    if (!(metres_per_pixel > 0) || !std::isfinite(metres_per_pixel)) return;
    const double metres = round_below(160 * metres_per_pixel);
    const double width = metres / metres_per_pixel;
    const QPointF end(scale.size.width() - 14, scale.size.height() - 26);
    painter.setPen(QPen(colour, 2));
    painter.drawLine(end, end - QPointF(width, 0));
    for (const double at : {0.0, width}) painter.drawLine(end - QPointF(at, -4), end - QPointF(at, 4));
    const QString name = metres >= 1000 ? QString::number(metres / 1000) + say(" км", " km")
                                        : QString::number(metres) + say(" м", " m");
    painter.drawText(QRectF(end.x() - width, end.y() - 22, width, 16), Qt::AlignCenter | Qt::TextDontClip,
                     name);
}

}  // namespace oxhost::desktop
