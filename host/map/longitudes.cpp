#include "map/longitudes.h"

#include <algorithm>
#include <cmath>

namespace oxhost::map {

namespace {

struct span {
    double west, east;
};

double whole_turns(double degrees) { return 360 * std::floor(degrees / 360); }

/// Its west end lies within [-180, 180).
span span_of(const polyline& line) {
    const auto [west, east] = std::ranges::minmax(line, {}, &point::x);
    const double turn = whole_turns(west.x + 180);
    return {west.x - turn, east.x - turn};
}

/// Where the circle is cut.
double cut_between(std::vector<span> spans) {
    std::ranges::sort(spans, {}, &span::west);
    double covered = std::ranges::max(spans, {}, &span::east).east - 360;
    double widest = 0, cut = -180;
    for (const auto& [west, east] : spans) {
        if (west - covered > widest) {
            widest = west - covered;
            cut = covered <= -180 ? -180 : (covered + west) / 2;
        }
        covered = std::max(covered, east);
    }
    return cut;
}

}  // namespace

void unwrap(polyline& line) {
    for (std::size_t i = 1; i < line.size(); ++i)
        line[i].x = line[i - 1].x + std::remainder(line[i].x - line[i - 1].x, 360);
}

void gather(const std::vector<polyline*>& lines) {
    std::vector<span> spans;
    for (polyline* line : lines) {
        unwrap(*line);
        if (!line->empty()) spans.push_back(span_of(*line));
    }
    if (spans.empty()) return;
    const double cut = cut_between(std::move(spans));
    for (polyline* line : lines) {
        if (line->empty()) continue;
        const double turn = whole_turns(std::ranges::min(*line, {}, &point::x).x - cut);
        for (point& place : *line) place.x -= turn;
    }
}

}  // namespace oxhost::map
