#include "map/regions.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <map>

namespace oxhost::map {

namespace {

struct span {
    double west, east;
};

double whole_turns(double degrees) { return 360 * std::floor(degrees / 360); }

double west_of(const body& lines) {
    double west = std::numeric_limits<double>::infinity();
    for (const polyline* line : lines) west = std::min(west, std::ranges::min(*line, {}, &point::x).x);
    return west;
}

/// Its west end lies within [-180, 180).
span span_of(const body& lines) {
    const double west = west_of(lines);
    double east = west;
    for (const polyline* line : lines) east = std::max(east, std::ranges::max(*line, {}, &point::x).x);
    const double turn = whole_turns(west + 180);
    return {west - turn, east - turn};
}

/// Takes the turns of another line, so that both lie beside each other.
void follow(polyline& line, const polyline& first) {
    const auto nearest = [](double x, double to) { return to + std::remainder(x - to, 360); };
    if (line.size() == first.size()) {
        for (std::size_t i = 0; i < line.size(); ++i) line[i].x = nearest(line[i].x, first[i].x);
        return;
    }
    line.front().x = nearest(line.front().x, first.front().x);
    unwrap(line);
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

void gather(std::vector<body> bodies) {
    std::vector<span> spans;
    for (body& lines : bodies) {
        std::erase_if(lines, [](const polyline* line) { return line->empty(); });
        if (lines.empty()) continue;
        unwrap(*lines.front());
        for (polyline* line : lines) follow(*line, *lines.front());
        spans.push_back(span_of(lines));
    }
    if (spans.empty()) return;
    const double cut = cut_between(std::move(spans));
    for (const body& lines : bodies) {
        if (lines.empty()) continue;
        const double turn = whole_turns(west_of(lines) - cut);
        for (polyline* line : lines)
            for (point& place : *line) place.x -= turn;
    }
}

namespace {

using cell = std::pair<int, int>;

/// Cells of a world grid, of which neighbours that hold lines belong together.
class cell_groups {
public:
    explicit cell_groups(double size) : size_(size) {}

    cell cell_of(double x, double y) const {
        return {static_cast<int>(std::floor(x / size_)), static_cast<int>(std::floor(y / size_))};
    }
    void add(const geographic_extent& line) {
        const cell low = cell_of(line.min_x, line.min_y);
        const cell high = cell_of(line.max_x, line.max_y);
        for (int x = low.first; x <= high.first; ++x)
            for (int y = low.second; y <= high.second; ++y) {
                parent_.try_emplace({x, y}, cell{x, y});
                join({x, y}, low);
            }
    }
    void join_neighbours() {
        for (auto& [at, ignored] : parent_)
            for (const auto& [dx, dy] : {cell{1, 0}, {0, 1}, {1, 1}, {1, -1}})
                if (const cell next{at.first + dx, at.second + dy}; parent_.contains(next)) join(at, next);
    }
    cell root(cell member) {
        while (parent_.at(member) != member) member = parent_[member] = parent_.at(parent_.at(member));
        return member;
    }

private:
    void join(const cell& a, const cell& b) { parent_[root(a)] = root(b); }

    double size_;
    std::map<cell, cell> parent_;
};

std::vector<region> regions_of(const std::vector<geographic_extent>& lines, double cell_size) {
    cell_groups groups(cell_size);
    for (const auto& line : lines)
        if (!line.empty()) groups.add(line);
    groups.join_neighbours();
    std::map<cell, region> found;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].empty()) continue;
        region& joined = found[groups.root(groups.cell_of(lines[i].min_x, lines[i].min_y))];
        joined.bounds.add(lines[i]);
        joined.lines.push_back(i);
    }
    std::vector<region> regions;
    for (auto& [ignored, joined] : found) regions.push_back(std::move(joined));
    return regions;
}

/// What two regions would need together, in square degrees; long thin ones count as square.
double need(const region& a, const region& b) {
    geographic_extent both = a.bounds;
    both.add(b.bounds);
    return std::hypot(both.width(), both.height());
}

bool overlap(const geographic_extent& a, const geographic_extent& b) {
    return a.min_x <= b.max_x && b.min_x <= a.max_x && a.min_y <= b.max_y && b.min_y <= a.max_y;
}

/// Joins the pair that stays smallest, an overlapping pair before all others. False when nothing is left to
/// join: few enough, and all apart.
bool join_one(std::vector<region>& regions, std::size_t most) {
    std::size_t first = 0, second = 0;
    double best = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < regions.size(); ++i)
        for (std::size_t j = i + 1; j < regions.size(); ++j) {
            const bool must = overlap(regions[i].bounds, regions[j].bounds);
            if (!must && regions.size() <= most) continue;
            const double cost = need(regions[i], regions[j]) - (must ? 1000 : 0);
            if (cost >= best) continue;
            best = cost;
            first = i;
            second = j;
        }
    if (first == second) return false;
    regions[first].bounds.add(regions[second].bounds);
    std::ranges::copy(regions[second].lines, std::back_inserter(regions[first].lines));
    regions.erase(regions.begin() + static_cast<std::ptrdiff_t>(second));
    return true;
}

}  // namespace

std::vector<region> find_regions(const std::vector<geographic_extent>& lines, std::size_t most) {
    constexpr std::size_t most_to_compare = 64;
    double cell_size = 1;  // degrees
    auto regions = regions_of(lines, cell_size);
    while (regions.size() > most_to_compare) regions = regions_of(lines, cell_size *= 1.5);
    while (join_one(regions, most)) {
    }
    std::ranges::sort(regions, {}, [](const region& r) { return r.bounds.min_x; });
    for (region& each : regions) std::ranges::sort(each.lines);
    return regions;
}

}  // namespace oxhost::map
