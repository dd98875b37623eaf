#include "map/taken_room.h"

#include <algorithm>
#include <cmath>

namespace oxhost::map {

namespace {

constexpr double cell_size = 4;
constexpr double half_a_stroke = 3;  // of the widest line

/// Calls `visit` with places along a way, close enough to miss no cell.
template <class Visit>
void along(const point& from, const point& to, Visit visit) {
    const int steps = 1 + static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / (cell_size / 2));
    for (int n = 0; n <= steps; ++n) {
        const double part = static_cast<double>(n) / steps;
        visit(point{std::lerp(from.x, to.x, part), std::lerp(from.y, to.y, part)});
    }
}

/// On which side of a way a place lies.
double side(const leader& way, const point& place) {
    return (way.to.x - way.from.x) * (place.y - way.from.y) -
           (way.to.y - way.from.y) * (place.x - way.from.x);
}

bool cross(const leader& a, const leader& b) {
    return side(a, b.from) * side(a, b.to) <= 0 && side(b, a.from) * side(b, a.to) <= 0;
}

}  // namespace

taken_room::taken_room(const rectangle& within)
    : within_(within),
      columns_(1 + static_cast<std::size_t>(within.width / cell_size)),
      rows_(1 + static_cast<std::size_t>(within.height / cell_size)),
      cells_(columns_ * rows_) {}

std::size_t taken_room::index_at(const point& place) const {
    const auto index = [](double offset, std::size_t count) {
        return static_cast<std::size_t>(std::clamp(offset / cell_size, 0.0, static_cast<double>(count) - 1));
    };
    return index(place.y - within_.y, rows_) * columns_ + index(place.x - within_.x, columns_);
}

bool taken_room::any(const rectangle& box, const std::function<bool(const point&)>& found) {
    for (double y = box.y;; y = std::min(y + cell_size, box.y + box.height)) {
        for (double x = box.x;; x = std::min(x + cell_size, box.x + box.width)) {
            if (found({x, y})) return true;
            if (x >= box.x + box.width) break;
        }
        if (y >= box.y + box.height) return false;
    }
}

void taken_room::take(const rectangle& box) {
    any(box, [this](const point& place) {
        at(place).text = true;
        return false;
    });
}

void taken_room::take(const polyline& path, line_id line) {
    const auto mark = [&](const point& place) {
        const rectangle stroke = rectangle{place.x, place.y, 0, 0}.grown(half_a_stroke);
        for (const point& corner :
             {place, point{stroke.x, stroke.y}, point{stroke.x + stroke.width, stroke.y},
              point{stroke.x, stroke.y + stroke.height},
              point{stroke.x + stroke.width, stroke.y + stroke.height}}) {
            cell& touched = at(corner);
            touched.line = touched.line == none || touched.line == line ? line : several;
        }
    };
    for (std::size_t i = 0; i < path.size(); ++i) along(path[i == 0 ? 0 : i - 1], path[i], mark);
}

void taken_room::take(const leader& drawn) {
    along(drawn.from, drawn.to, [&](const point& place) { at(place).leader = true; });
    leaders_.push_back(drawn);
}

bool taken_room::is_free(const rectangle& box, line_id own, double distance) const {
    if (!within_.contains(box)) return false;
    const auto taken = [this](const point& place) {
        const cell& touched = at(place);
        return touched.text || touched.leader || touched.line != none;
    };
    const auto near_another = [this, own](const point& place) {
        const line_id line = at(place).line;
        return line != none && line != own;
    };
    return !any(box, taken) && (distance <= 0 || !any(box.grown(distance), near_another));
}

bool taken_room::is_free_on(const rectangle& box, line_id own, bool over_others) const {
    return within_.contains(box) && !any(box, [&](const point& place) {
               const cell& touched = at(place);
               const bool another = touched.line != none && touched.line != own;
               return touched.text || touched.leader || (another && !over_others);
           });
}

std::optional<int> taken_room::crossings(const leader& drawn, line_id own) const {
    int crossed = 0;
    bool over_text = false;
    line_id last = own;
    along(drawn.from, drawn.to, [&](const point& place) {
        const cell& touched = at(place);
        over_text |= touched.text;
        if (touched.line != last && touched.line != none && touched.line != own) ++crossed;
        last = touched.line;
    });
    if (over_text || std::ranges::any_of(leaders_, [&](const leader& other) { return cross(drawn, other); }))
        return {};
    return crossed;
}

}  // namespace oxhost::map
