#include "map/labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "map/lettering.h"

namespace oxhost::map {

namespace {

/// The line's ends and quarters: where a text or a leader may begin. The ends come first.
std::vector<point> anchors_of(const polyline& path) {
    std::vector<point> anchors{path.back(), path.front()};
    double length = 0;
    for (std::size_t i = 1; i < path.size(); ++i)
        length += std::hypot(path[i].x - path[i - 1].x, path[i].y - path[i - 1].y);
    double walked = 0;
    int quarter = 1;
    for (std::size_t i = 1; i < path.size() && quarter < 4; ++i) {
        const double step = std::hypot(path[i].x - path[i - 1].x, path[i].y - path[i - 1].y);
        for (; quarter < 4 && step > 0 && walked + step >= length * quarter / 4; ++quarter) {
            const double part = (length * quarter / 4 - walked) / step;
            anchors.push_back(
                {std::lerp(path[i - 1].x, path[i].x, part), std::lerp(path[i - 1].y, path[i].y, part)});
        }
        walked += step;
    }
    return anchors;
}

/// The ways that are tried around a point; a text before the point is read first.
constexpr int directions = 24;

point towards(int direction) {
    const double angle = 2 * std::numbers::pi * direction / directions;
    return {std::cos(angle), std::sin(angle)};
}

rectangle box_around(const point& middle, const point& size) {
    return {middle.x - size.x / 2, middle.y - size.y / 2, size.x, size.y};
}

point room_of(std::string_view text, const text_style& style) {
    return {width_of(text, style.size) + 4, style.size + 3};
}

}  // namespace

std::optional<rectangle> labels::beside(const std::vector<point>& anchors, point size,
                                        std::size_t line) const {
    constexpr double distance = 6;
    for (const point& anchor : anchors)
        for (const auto& [right, down] :
             std::to_array<point>({{1, 0}, {-1, 0}, {1, 1}, {1, -1}, {-1, 1}, {-1, -1}, {0, -1}, {0, 1}})) {
            const double reach = size.x / 2 + (down == 0 ? distance : 3);
            const rectangle box =
                box_around({anchor.x + right * reach, anchor.y + down * (size.y / 2 + distance)}, size);
            if (room_.is_free(box, line, distance)) return box;
        }
    return {};
}

std::optional<rectangle> labels::on_line(const std::vector<point>& anchors, point size, std::size_t line,
                                         bool over_others) const {
    for (auto anchor = anchors.rbegin(); anchor != anchors.rend(); ++anchor)
        if (const rectangle box = box_around(*anchor, size); room_.is_free_on(box, line, over_others))
            return box;
    return {};
}

std::optional<std::pair<rectangle, leader>> labels::led(const std::vector<point>& anchors, point size,
                                                        std::size_t line, double longest) const {
    // Units of length that they are worth:
    constexpr double other_line = 30, not_an_end = 40;
    constexpr int most_crossed = 3;
    double best = std::numeric_limits<double>::infinity();
    std::optional<std::pair<rectangle, leader>> found;
    for (double length = 14; length <= longest && length < best; length *= 1.25)
        for (std::size_t a = 0; a < anchors.size(); ++a)
            for (int direction = 0; direction < directions; ++direction) {
                const double least = length + not_an_end * static_cast<double>(a > 1);
                if (least >= best) break;
                const point way = towards(direction), &from = anchors[a];
                const leader drawn{from, {from.x + way.x * length, from.y + way.y * length}};
                const double side = way.x >= -1e-9 ? size.x / 2 : -size.x / 2;
                const rectangle box = box_around({drawn.to.x + side, drawn.to.y}, size);
                if (!room_.is_free(box, line, 0)) continue;
                const auto crossed = room_.crossings(drawn, line);
                if (!crossed || *crossed > most_crossed || least + *crossed * other_line >= best) continue;
                best = least + *crossed * other_line;
                found.emplace(box, drawn);
            }
    return found;
}

bool labels::add(std::string_view text, const text_style& style, const polyline& path, std::size_t line,
                 ways allowed) {
    constexpr double longest = 130, longest_beside_other_ways = 60, longest_at_last = 260;
    const point room = room_of(text, style);
    const auto anchors = anchors_of(path);
    if (const auto box = beside(anchors, room, line))
        return keep({std::string(text), style.look, *box, {}}), true;
    if (allowed.on_line)
        if (const auto box = on_line(anchors, room, line, false))
            return keep({std::string(text), style.look, *box, {}}), true;
    if (allowed.leader)
        if (const auto found =
                led(anchors, room, line, allowed.on_line ? longest_beside_other_ways : longest))
            return keep({std::string(text), style.look, found->first, found->second}), true;
    if (allowed.on_line)
        if (const auto box = on_line(anchors, room, line, true))
            return keep({std::string(text), style.look, *box, {}}), true;
    if (allowed.leader && allowed.on_line)
        if (const auto found = led(anchors, room, line, longest_at_last))
            return keep({std::string(text), style.look, found->first, found->second}), true;
    return false;
}

void labels::keep(label made) {
    room_.take(made.place);
    if (made.led) room_.take(*made.led);
    placed_.push_back(std::move(made));
}

std::optional<std::vector<labels::label>> labels::column(const std::vector<std::string_view>& texts,
                                                         const text_style& style, const bundle& lines,
                                                         point top) const {
    constexpr double out_of_the_bundle = 9;
    std::vector<label> made;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const point room = room_of(texts[i], style), &from = lines.ends[i];
        const leader drawn{from, {top.x, top.y + static_cast<double>(i) * (style.size + 4)}};
        const rectangle box =
            box_around({drawn.to.x + (lines.to_the_right ? room.x / 2 : -room.x / 2), drawn.to.y}, room);
        if (!room_.is_free(box, lines.lines[i], 0)) return {};
        const double length = std::hypot(drawn.to.x - from.x, drawn.to.y - from.y);
        const double part = std::min(1.0, out_of_the_bundle / length);
        const leader beyond{{std::lerp(from.x, drawn.to.x, part), std::lerp(from.y, drawn.to.y, part)},
                            drawn.to};
        if (room_.crossings(beyond, lines.lines[i]) != 0) return {};
        made.push_back({std::string(texts[i]), style.look, box, drawn});
    }
    return made;
}

bool labels::add_column(const std::vector<std::string_view>& texts, const text_style& style,
                        const bundle& lines) {
    extent ends;
    for (const point& end : lines.ends) ends.add(end);
    const double height = static_cast<double>(texts.size() - 1) * (style.size + 4);
    // Beyond the ends: beside them where the lines run across the page, above or below where they run along.
    const double middle = ends.middle().y + lines.outward.y * (height / 2 + 12);
    for (const double distance : {16.0, 28.0, 44.0, 64.0, 90.0})
        for (const double slide : {0.0, -0.15, 0.15, -0.3, 0.3, -0.5, 0.5}) {
            const point top{lines.to_the_right ? ends.max_x + distance : ends.min_x - distance,
                            middle - height / 2 + slide * height};
            if (auto made = column(texts, style, lines, top)) {
                for (label& each : *made) keep(std::move(each));
                return true;
            }
        }
    return false;
}

std::string element(const labels::label& placed) {
    std::string drawn;
    if (const auto& led = placed.led)
        drawn = svg::path_element(
            "leader", 'M' + svg::pair(led->from.x, led->from.y) + 'L' + svg::pair(led->to.x, led->to.y));
    const point at = placed.baseline();
    return drawn + svg::text_element(placed.look, at.x, at.y, placed.text);
}

}  // namespace oxhost::map
