#include "map/captions.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"

namespace oxhost::map {

namespace {

constexpr double letter_width = 6.35;  // of the picture's 11 px face, on average
constexpr double line_height = 14;
constexpr double distance = 7;  // from the line
constexpr std::size_t most = 200;

}  // namespace

double captions::width_of(std::string_view text) {
    return letter_width * static_cast<double>(character_count(text));
}

bool captions::is_free(const rectangle& box) const {
    return within_.contains(box) &&
           std::ranges::none_of(taken_, [&](const rectangle& other) { return other.overlaps(box); });
}

void captions::avoid(const polyline& path) {
    constexpr double step = 8;
    for (std::size_t i = 1; i < path.size(); ++i) {
        const point start = path[i - 1], end = path[i];
        const double pieces = std::ceil(std::hypot(end.x - start.x, end.y - start.y) / step);
        if (pieces == 0) continue;
        for (double n = 0; n <= pieces; ++n)
            taken_.push_back({start.x + (end.x - start.x) * n / pieces - step / 2,
                              start.y + (end.y - start.y) * n / pieces - step / 2, step, step});
    }
}

void captions::add(const std::string& text, const polyline& path) {
    if (path.empty() || placed_.size() >= most) return;
    const double width = width_of(text);
    const point middle = path[path.size() / 2];
    const auto [west, east] = std::ranges::minmax(path, {}, [](const point& p) { return p.x; });
    const double half = line_height / 2;
    const auto box = [&](double x, double y) { return rectangle{x, y, width, line_height}; };
    const double right_of_middle = middle.x + distance, left_of_middle = middle.x - distance - width;
    const double below = middle.y + distance, above = middle.y - distance - line_height;
    std::vector<rectangle> tries{
        box(east.x + distance, east.y - half), box(west.x - distance - width, west.y - half),
        box(right_of_middle, below),           box(left_of_middle, above),
        box(middle.x - width / 2, above),      box(middle.x - width / 2, below),
        box(right_of_middle, above),           box(left_of_middle, below)};
    for (const double lines : {-1.0, 1.0, -2.0, 2.0}) {
        tries.push_back(box(east.x + distance, east.y - half + lines * line_height));
        tries.push_back(box(west.x - distance - width, west.y - half + lines * line_height));
    }
    tries.push_back(box(within_.x + distance, within_.y + distance));
    tries.push_back(box(within_.x + within_.width - distance - width, within_.y + distance));
    const auto found = std::ranges::find_if(tries, [&](const rectangle& each) { return is_free(each); });
    if (found == tries.end()) return;
    taken_.push_back(*found);
    placed_.push_back({text, *found});
}

}  // namespace oxhost::map
