#include "map/land.h"

#include <array>
#include <cmath>
#include <string_view>
#include <vector>

namespace oxhost::map {

namespace {

constexpr auto encoded = std::to_array<std::string_view>({
#include "map/land/rings.inc"
});

struct ring {
    polyline places;  ///< degrees, not closed
    geographic_extent bounds;
};

/// The coding is described in land/encode.py.
double next_number(std::string_view& text) {
    int value = 0;
    for (int shift = 0;; shift += 5) {
        const int group = text.front() - 63;
        text.remove_prefix(1);
        value |= (group & 31) << shift;
        if (group < 32) break;
    }
    return (value & 1) != 0 ? -(value >> 1) - 1 : value >> 1;
}

std::vector<ring> decoded() {
    std::vector<ring> rings;
    for (std::string_view text : encoded) {
        ring& made = rings.emplace_back();
        point sum{0, 0};
        while (!text.empty()) {
            sum.x += next_number(text);
            sum.y += next_number(text);
            made.places.push_back({sum.x / 100, sum.y / 100});
            made.bounds.add(made.places.back());
        }
    }
    return rings;
}

/// The part of a closed ring on one side of a straight edge (Sutherland and Hodgman).
template <class Inside, class Meet>
polyline cut(const polyline& closed, Inside inside, Meet meet) {
    polyline kept;
    for (std::size_t i = 0; i < closed.size(); ++i) {
        const point& from = closed[i == 0 ? closed.size() - 1 : i - 1];
        const point& to = closed[i];
        if (inside(from) != inside(to)) kept.push_back(meet(from, to));
        if (inside(to)) kept.push_back(to);
    }
    return kept;
}

polyline cut_to(const polyline& closed, const geographic_extent& box) {
    const auto at_x = [](double x) {
        return [x](point a, point b) { return point{x, std::lerp(a.y, b.y, (x - a.x) / (b.x - a.x))}; };
    };
    const auto at_y = [](double y) {
        return [y](point a, point b) { return point{std::lerp(a.x, b.x, (y - a.y) / (b.y - a.y)), y}; };
    };
    polyline kept = cut(
        closed, [&](point p) { return p.x >= box.min_x; }, at_x(box.min_x));
    kept = cut(
        kept, [&](point p) { return p.x <= box.max_x; }, at_x(box.max_x));
    kept = cut(
        kept, [&](point p) { return p.y >= box.min_y; }, at_y(box.min_y));
    return cut(
        kept, [&](point p) { return p.y <= box.max_y; }, at_y(box.max_y));
}

bool apart(const geographic_extent& a, const geographic_extent& b) {
    return a.max_x <= b.min_x || b.max_x <= a.min_x || a.max_y <= b.min_y || b.max_y <= a.min_y;
}

/// Paths of the land's area and of its coast: not of where the frame, the date line or the pole cuts it.
class outline {
public:
    explicit outline(const frame& shown) : shown_(shown) {}

    /// `box` is what the frame shows, `turn` degrees to the west.
    void add(const polyline& part, const geographic_extent& box, double turn) {
        constexpr double smallest_step = 0.7;
        std::vector<vertex> vertices;
        for (const point& place : part) {
            const vertex next{place, shown_.to_picture(point{place.x + turn, place.y})};
            if (vertices.empty() || std::hypot(next.drawn.x - vertices.back().drawn.x,
                                               next.drawn.y - vertices.back().drawn.y) >= smallest_step)
                vertices.push_back(next);
        }
        if (vertices.size() < 3) return;
        bool pen_down = false;
        for (std::size_t i = 0; i <= vertices.size(); ++i) {
            const vertex& to = vertices[i % vertices.size()];
            const std::string drawn = svg::pair(to.drawn.x, to.drawn.y);
            if (i < vertices.size()) area_ += (i == 0 ? 'M' : 'L') + drawn;
            if (i == 0) continue;
            const vertex& from = vertices[i - 1];
            if (is_cut(from.place, to.place, box)) {
                pen_down = false;
                continue;
            }
            if (!pen_down) coast_ += 'M' + svg::pair(from.drawn.x, from.drawn.y);
            coast_ += 'L' + drawn;
            pen_down = true;
        }
        area_ += 'Z';
    }

    std::string elements() const {
        return (area_.empty() ? "" : svg::path_element("land", area_)) +
               (coast_.empty() ? "" : svg::path_element("coast", coast_));
    }

private:
    struct vertex {
        point place, drawn;
    };

    static bool is_cut(point a, point b, const geographic_extent& box) {
        if (a.x == b.x) return a.x == box.min_x || a.x == box.max_x || std::abs(a.x) == 180;
        return a.y == b.y && (a.y == box.min_y || a.y == box.max_y || a.y == -90);
    }

    const frame& shown_;
    std::string area_, coast_;
};

const std::vector<ring>& land_rings() {
    static const std::vector<ring> land = decoded();
    return land;
}

}  // namespace

std::vector<polyline> land_within(const geographic_extent& box) {
    std::vector<polyline> rings;
    for (const ring& each : land_rings())
        if (!apart(each.bounds, box))
            if (polyline part = cut_to(each.places, box); part.size() > 2) rings.push_back(std::move(part));
    return rings;
}

std::string land_in(const frame& shown) {
    outline drawn(shown);
    const geographic_extent& whole = shown.shown();
    for (double turn = 360 * std::floor((whole.min_x + 180) / 360); turn - 180 < whole.max_x; turn += 360) {
        const geographic_extent box{whole.min_x - turn, whole.min_y, whole.max_x - turn, whole.max_y};
        for (const ring& each : land_rings())
            if (!apart(each.bounds, box)) drawn.add(cut_to(each.places, box), box, turn);
    }
    return drawn.elements();
}

}  // namespace oxhost::map
