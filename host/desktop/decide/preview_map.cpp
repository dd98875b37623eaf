#include "desktop/decide/preview_map.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/map/colours.h"
#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

/// Degrees with longitude shortened as at the middle latitude, fitted into a rectangle.
class fitted {
public:
    void take(const polyline& line) {
        for (const point& each : line) {
            west_ = std::min(west_, each.x), east_ = std::max(east_, each.x);
            south_ = std::min(south_, each.y), north_ = std::max(north_, each.y);
        }
    }
    bool empty() const { return west_ > east_; }
    void fit(const QRectF& place) {
        constexpr double smallest = 1e-4;  // degrees, about ten metres
        shrink_ = std::cos((south_ + north_) / 2 * std::numbers::pi / 180);
        const double width = std::max((east_ - west_) * shrink_, smallest),
                     height = std::max(north_ - south_, smallest);
        scale_ = std::min(place.width() / width, place.height() / height);
        centre_ = place.center();
    }
    QPolygonF operator()(const polyline& line) const {
        QPolygonF drawn;
        for (const point& each : line)
            drawn << centre_ +
                         QPointF((each.x - (west_ + east_) / 2) * shrink_, (south_ + north_) / 2 - each.y) *
                             scale_;
        return drawn;
    }

private:
    double west_ = 1e9, east_ = -1e9, south_ = 1e9, north_ = -1e9, shrink_ = 1, scale_ = 1;
    QPointF centre_;
};

}  // namespace

preview_map::preview_map(const oxhost::run::foreseen& told, QWidget* parent) : QWidget(parent), told_(told) {
    setMinimumSize(160, 120);
    name_texts();
}

void preview_map::emphasise(std::vector<std::size_t> places) {
    chosen_ = std::move(places);
    update();
}

void preview_map::paintEvent(QPaintEvent*) {
    const map_colours colours(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), colours.land);
    fitted ground;
    const auto each_line = [&](auto act) {
        for (std::size_t i = 0; i < told_.scenes.size(); ++i)
            if (chosen_.empty() || std::ranges::binary_search(chosen_, i)) act(told_.scenes[i]);
    };
    each_line([&](const auto& scene) {
        if (scene.before) ground.take(*scene.before);
        if (scene.after) ground.take(*scene.after);
    });
    const int line = fontMetrics().height();
    if (!ground.empty()) {
        ground.fit(QRectF(rect()).adjusted(line, line, -line, -2 * line));
        painter.setPen(QPen(colours.before, 5));
        each_line([&](const auto& scene) {
            if (scene.before) painter.drawPolyline(ground(*scene.before));
        });
        each_line([&](const auto& scene) {
            const bool failed = scene.comes_to == oxhost::run::outcome::failed;
            painter.setPen(QPen(failed ? colours.mark : colours.of_projection(0), 1.5));
            if (scene.after) painter.drawPolyline(ground(*scene.after));
        });
    }
    painter.setPen(colours.faint_text);
    painter.drawText(rect().adjusted(line / 2, 0, -line / 2, -line / 4), Qt::AlignLeft | Qt::AlignBottom,
                     ground.empty() ? say("Положение линий неизвестно", "Where the lines lie is unknown")
                                    : say("бледно: до, ярко: после", "pale: before, strong: after"));
}

void preview_map::name_texts() {
    setAccessibleName(say("Карта линий до и после", "Map of the lines before and after"));
    update();
}

void preview_map::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    QWidget::changeEvent(event);
}

}  // namespace oxhost::desktop
