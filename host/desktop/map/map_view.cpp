#include "desktop/map/map_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "desktop/map/colours.h"
#include "desktop/text.h"
#include "geodesy/crs.h"
#include "geodesy/description.h"

namespace oxhost::desktop {

namespace {

bool apart(const extent& a, const extent& b) {
    return a.empty() || a.max_x < b.min_x || b.max_x < a.min_x || a.max_y < b.min_y || b.max_y < a.min_y;
}

double distance_to(QPointF place, QPointF from, QPointF to) {
    const QPointF along = to - from, offset = place - from;
    const double length = QPointF::dotProduct(along, along);
    const double t = length > 0 ? std::clamp(QPointF::dotProduct(offset, along) / length, 0.0, 1.0) : 0;
    const QPointF gap = offset - t * along;
    return std::hypot(gap.x(), gap.y());
}

}  // namespace

map_view::map_view(document& shown, QWidget* parent) : QWidget(parent), document_(shown), lines_(shown) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&document_, &document::reset, this, [this] {
        mark_.reset();
        candidate_.clear();
        fitted_ = fitted_ && document_.opened();
    });
    connect(&document_, &document::selection_changed, this, qOverload<>(&QWidget::update));
    connect(&lines_, &projected_lines::grown, this, &map_view::begin_again);
    name_texts();
    begin_again();
}

/// Of a map that nobody has moved, all is shown.
void map_view::begin_again() {
    if (lines_.complete() || !fitted_) ground_.begin(lines_.system(), lines_.bounds());
    if (!fitted_) fit_all();
    if (lines_.complete() && !lines_.lines().empty()) fitted_ = true;
    draw_again();
}

void map_view::draw_again() {
    picture_is_old_ = true;
    update();
}

void map_view::set_system(const std::string& proj4) {
    if (const auto wanted = crs_of(proj4); !wanted->valid()) throw std::invalid_argument(wanted->error);
    fitted_ = false;
    lines_.set_system(proj4);
    show_before(std::move(before_));
}

void map_view::fit_all() {
    const extent all = lines_.bounds();
    scale_.size = size();
    const bool degrees = crs_of(lines_.system())->geographic;
    scale_.stretch =
        degrees && !all.empty() ? std::max(0.05, std::cos(all.middle().y * std::numbers::pi / 180)) : 1;
    if (all.empty() && degrees)
        scale_.fit({-180, -85, 180, 85});
    else
        scale_.fit(all);
    draw_again();
}

void map_view::fit_selection() {
    extent chosen;
    for (const std::size_t each : document_.selected())
        if (each < lines_.lines().size()) chosen.add(lines_.lines()[each].bounds);
    if (chosen.empty()) return;
    scale_.fit(chosen);
    draw_again();
}

polyline map_view::on_map(const polyline& degrees) const {
    polyline places;
    for (const point& each : degrees)
        if (const point at = ground_.to_map(each); is_finite(at)) places.push_back(at);
    return places;
}

void map_view::show_before(placed_lines lines) {
    before_ = std::move(lines);
    before_on_map_.clear();
    for (const auto& [scene, degrees] : before_) before_on_map_.push_back(on_map(degrees));
    draw_again();
}

void map_view::show_candidate(const polyline& degrees) {
    candidate_ = on_map(degrees);
    extent there;
    for (const point& each : candidate_) there.add(each);
    if (!there.empty() && apart(there, scale_.shown())) scale_.fit(there);
    draw_again();
}

void map_view::go_to(point degrees) {
    const point at = ground_.to_map(degrees);
    if (!is_finite(at)) return;
    mark_ = at;
    scale_.middle = at;
    draw_again();
}

// ---- drawing

void map_view::paintEvent(QPaintEvent*) {
    if (picture_is_old_) {
        picture_is_old_ = false;
        const double ratio = devicePixelRatioF();
        if (picture_.size() != size() * ratio) picture_ = QImage(size() * ratio, QImage::Format_RGB32);
        picture_.setDevicePixelRatio(ratio);
        QPainter painter(&picture_);
        draw_lines(painter);
    }
    QPainter painter(this);
    painter.drawImage(0, 0, picture_);
    draw_over(painter);
}

void map_view::draw_path(QPainter& painter, const std::vector<point>& places) const {
    QPolygonF path;
    path.reserve(static_cast<qsizetype>(places.size()));
    for (const point& each : places) path << scale_.to_widget(each);
    painter.drawPolyline(path);
}

void map_view::draw_lines(QPainter& painter) {
    const map_colours colours(palette());
    painter.fillRect(rect(), colours.sea);
    painter.setRenderHint(QPainter::Antialiasing);
    ground_.draw_land(painter, scale_, colours.land, colours.coast);
    ground_.draw_graticule(painter, scale_, colours.graticule, colours.faint_text);
    const extent shown = scale_.shown();
    painter.setPen(QPen(colours.before, 3));
    for (const polyline& each : before_on_map_) draw_path(painter, each);
    // So many lines are told apart by their places only; smooth edges would cost most of a frame.
    painter.setRenderHint(QPainter::Antialiasing, lines_.lines().size() < 2000);
    const double width = lines_.lines().size() < 2000 ? 1.6 : 0;
    for (std::size_t i = 0; i < lines_.lines().size(); ++i) {
        const auto& line = lines_.lines()[i];
        if (line.places.empty() || apart(line.bounds, shown)) continue;
        painter.setPen(QPen(colours.of_projection(line.colour), width));
        draw_path(painter, lines_.thinned(i, scale_.units_per_pixel));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    ground_.draw_scale_bar(painter, scale_, palette().color(QPalette::WindowText));
    draw_legend(painter);
}

/// The selection, the line under the pointer, the candidate, the mark, the rectangle that is being drawn.
void map_view::draw_over(QPainter& painter) {
    const map_colours colours(palette());
    painter.setRenderHint(QPainter::Antialiasing, document_.selected().size() < 500);
    painter.setPen(QPen(palette().color(QPalette::Highlight), document_.selected().size() < 500 ? 4 : 2));
    const extent shown = scale_.shown();
    for (const std::size_t each : document_.selected())
        if (each < lines_.lines().size() && !apart(lines_.lines()[each].bounds, shown))
            draw_path(painter, lines_.thinned(each, scale_.units_per_pixel));
    if (hovered_ && *hovered_ < lines_.lines().size()) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
        draw_path(painter, lines_.thinned(*hovered_, scale_.units_per_pixel));
    }
    painter.setPen(QPen(colours.mark, 3));
    if (!candidate_.empty()) draw_path(painter, candidate_);
    if (mark_) painter.drawEllipse(scale_.to_widget(*mark_), 9, 9);
    if (drag_ == dragging::zooms || drag_ == dragging::selects) {
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DashLine));
        painter.drawRect(QRectF(pressed_, last_).normalized());
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void map_view::draw_legend(QPainter& painter) {
    constexpr std::size_t most = 10;
    QStringList texts;
    const auto& projections = lines_.projections();
    for (std::size_t i = 0; i < std::min(projections.size(), most); ++i)
        texts << to_qt(short_description(projections[i], current_language()));
    if (projections.size() > most) texts << say("и ещё %1", "and %1 more").arg(projections.size() - most);
    if (!lines_.without_projection().empty())
        texts << say("без проекции, не показано: %1", "without projection, not shown: %1")
                     .arg(lines_.without_projection().size());
    if (!lines_.complete()) texts << say("линии готовятся…", "lines are being prepared…");
    if (texts.isEmpty()) return;
    const map_colours colours(palette());
    const int high = painter.fontMetrics().height() + 2;
    int wide = 0;
    for (QString& each : texts) {
        each = painter.fontMetrics().elidedText(each, Qt::ElideRight, width() / 2);
        wide = std::max(wide, painter.fontMetrics().horizontalAdvance(each));
    }
    QColor ground = palette().color(QPalette::Base);
    ground.setAlpha(215);
    painter.fillRect(QRect(8, 8, wide + 40, high * static_cast<int>(texts.size()) + 8), ground);
    for (int i = 0; i < texts.size(); ++i) {
        const int y = 12 + i * high;
        if (static_cast<std::size_t>(i) < std::min(projections.size(), most)) {
            painter.setPen(QPen(colours.of_projection(i), 3));
            painter.drawLine(14, y + high / 2, 34, y + high / 2);
        }
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRect(40, y, wide, high), Qt::AlignVCenter, texts[i]);
    }
}

// ---- what the person does

void map_view::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool whole = !fitted_ || scale_.size == QSize(1, 1);
    scale_.size = size();
    if (whole) fit_all();
    draw_again();
}

void map_view::wheelEvent(QWheelEvent* event) {
    scale_.zoom(std::pow(1.2, event->angleDelta().y() / 120.0), event->position());
    draw_again();
}

void map_view::mousePressEvent(QMouseEvent* event) {
    pressed_ = last_ = event->position();
    moved_ = false;
    const auto keys = event->modifiers();
    drag_ = keys.testFlag(Qt::ShiftModifier) || event->button() == Qt::RightButton ? dragging::zooms
            : keys.testFlag(Qt::ControlModifier)                                   ? dragging::selects
                                                                                   : dragging::moves;
}

void map_view::mouseMoveEvent(QMouseEvent* event) {
    const QPointF now = event->position();
    if (drag_ == dragging::nothing) return point_at(now);
    moved_ = moved_ || (now - pressed_).manhattanLength() > 4;
    if (drag_ == dragging::moves && moved_) {
        const point from = scale_.to_map(last_), to = scale_.to_map(now);
        scale_.middle.x += from.x - to.x;
        scale_.middle.y += from.y - to.y;
        picture_is_old_ = true;
    }
    last_ = now;
    update();
}

void map_view::mouseReleaseEvent(QMouseEvent* event) {
    const dragging was = std::exchange(drag_, dragging::nothing);
    if (moved_ && was != dragging::moves) {
        const QRectF chosen = QRectF(pressed_, event->position()).normalized();
        if (was == dragging::zooms) {
            extent wanted;
            wanted.add(scale_.to_map(chosen.topLeft()));
            wanted.add(scale_.to_map(chosen.bottomRight()));
            scale_.fit(wanted);
        } else {
            end_rectangle(chosen);
        }
    } else if (!moved_ && event->button() == Qt::LeftButton) {
        const auto found = line_at(event->position());
        std::vector<std::size_t> scenes;
        if (event->modifiers().testFlag(Qt::ControlModifier)) scenes = document_.selected();
        if (found && std::erase(scenes, *found) == 0) scenes.push_back(*found);
        document_.select(std::move(scenes));
    }
    draw_again();
}

void map_view::end_rectangle(const QRectF& chosen) {
    std::vector<std::size_t> scenes = document_.selected();
    for (std::size_t i = 0; i < lines_.lines().size(); ++i) {
        const auto& places = lines_.thinned(i, scale_.units_per_pixel);
        const bool inside = std::ranges::any_of(
            places, [&](const point& each) { return chosen.contains(scale_.to_widget(each)); });
        if (inside && std::ranges::find(scenes, i) == scenes.end()) scenes.push_back(i);
    }
    document_.select(std::move(scenes));
}

std::optional<std::size_t> map_view::line_at(QPointF pixel) {
    constexpr double reach = 6;
    extent near;
    near.add(scale_.to_map(pixel - QPointF(reach, reach)));
    near.add(scale_.to_map(pixel + QPointF(reach, reach)));
    std::optional<std::size_t> best;
    double nearest = reach;
    for (std::size_t i = 0; i < lines_.lines().size(); ++i) {
        if (apart(lines_.lines()[i].bounds, near)) continue;
        const auto& places = lines_.thinned(i, scale_.units_per_pixel);
        for (std::size_t k = 1; k < places.size(); ++k) {
            const double gap =
                distance_to(pixel, scale_.to_widget(places[k - 1]), scale_.to_widget(places[k]));
            if (gap < nearest) {
                nearest = gap;
                best = i;
            }
        }
    }
    return best;
}

void map_view::point_at(QPointF pixel) {
    const auto found = line_at(pixel);
    const point at = scale_.to_map(pixel);
    const bool degrees = crs_of(lines_.system())->geographic;
    const auto written = [](point place, bool fine) {
        return QString::number(place.x, 'f', fine ? 6 : 2) + "  " +
               QString::number(place.y, 'f', fine ? 6 : 2);
    };
    QString text = written(at, degrees);
    QString caption;
    if (const scene* subject = found && document_.opened() ? document_.opened()->at(*found) : nullptr) {
        caption = to_qt(subject->caption);
        text = caption + "   " + text;
        if (const auto own = lines_.in_scene(*found, at))
            text += say("   в её системе: ", "   in its system: ") +
                    written(*own, crs_of(subject->proj4)->geographic);
    }
    setToolTip(caption);
    if (found != hovered_) {
        hovered_ = found;
        update();
    }
    Q_EMIT pointed(text);
}

void map_view::keyPressEvent(QKeyEvent* event) {
    const double step = 60 * scale_.units_per_pixel;
    const QPointF middle(width() / 2.0, height() / 2.0);
    switch (event->key()) {
        case Qt::Key_Left:
            scale_.middle.x -= step / scale_.stretch;
            break;
        case Qt::Key_Right:
            scale_.middle.x += step / scale_.stretch;
            break;
        case Qt::Key_Up:
            scale_.middle.y += step;
            break;
        case Qt::Key_Down:
            scale_.middle.y -= step;
            break;
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            scale_.zoom(1.5, middle);
            break;
        case Qt::Key_Minus:
            scale_.zoom(1 / 1.5, middle);
            break;
        case Qt::Key_0:
            return fit_all();
        case Qt::Key_Escape:
            document_.select({});
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    draw_again();
}

void map_view::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange) draw_again();
    QWidget::changeEvent(event);
}

void map_view::name_texts() {
    setAccessibleName(say("Карта линий разрезов", "Map of the section lines"));
    setAccessibleDescription(say("Стрелки сдвигают, плюс и минус меняют масштаб, ноль показывает всё",
                                 "Arrows move, plus and minus zoom, zero shows all"));
}

}  // namespace oxhost::desktop
