#include "map/bundles.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace oxhost::map {

namespace {

constexpr double close = 17;  // ends: a text between them would touch a line
constexpr std::size_t fewest = 3;

struct line_end {
    std::size_t line;
    point at, outward;
};

std::vector<line_end> ends_of(const std::vector<const polyline*>& lines) {
    std::vector<line_end> ends;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const point &first = lines[i]->front(), &last = lines[i]->back();
        const double length = std::hypot(last.x - first.x, last.y - first.y);
        if (length < 2 * close) continue;
        const point way{(last.x - first.x) / length, (last.y - first.y) / length};
        ends.push_back({i, last, way});
        ends.push_back({i, first, {-way.x, -way.y}});
    }
    return ends;
}

/// Groups of ends of which each is close to another one that points the same way.
std::vector<std::vector<line_end>> groups_of(const std::vector<line_end>& ends) {
    std::vector<std::size_t> parent(ends.size());
    std::iota(parent.begin(), parent.end(), 0);
    const auto root = [&](std::size_t i) {
        while (parent[i] != i) i = parent[i] = parent[parent[i]];
        return i;
    };
    for (std::size_t i = 0; i < ends.size(); ++i)
        for (std::size_t j = i + 1; j < ends.size(); ++j) {
            const line_end &a = ends[i], &b = ends[j];
            const bool alike = a.outward.x * b.outward.x + a.outward.y * b.outward.y > 0.8;
            if (alike && std::hypot(a.at.x - b.at.x, a.at.y - b.at.y) < close) parent[root(i)] = root(j);
        }
    std::map<std::size_t, std::vector<line_end>> found;
    for (std::size_t i = 0; i < ends.size(); ++i) found[root(i)].push_back(ends[i]);
    std::vector<std::vector<line_end>> groups;
    for (auto& [ignored, group] : found) groups.push_back(std::move(group));
    return groups;
}

}  // namespace

bundle part_of(const bundle& whole, const std::function<bool(std::size_t)>& chosen) {
    bundle part{whole.to_the_right, {}, {}, whole.outward};
    for (std::size_t i = 0; i < whole.lines.size(); ++i)
        if (chosen(whole.lines[i])) {
            part.lines.push_back(whole.lines[i]);
            part.ends.push_back(whole.ends[i]);
        }
    return part;
}

bundle outermost(const bundle& whole, std::size_t wanted, bool to_the_right) {
    bundle turned = whole;
    if (to_the_right != whole.to_the_right) {
        turned.to_the_right = to_the_right;
        std::ranges::reverse(turned.lines);
        std::ranges::reverse(turned.ends);
    }
    const bool first_are_outer = (turned.ends.front().x > turned.ends.back().x) == to_the_right;
    const auto left_out =
        static_cast<std::ptrdiff_t>(turned.lines.size() - std::min(wanted, turned.lines.size()));
    const auto cut = [&](auto& list) {
        if (first_are_outer)
            list.erase(list.end() - left_out, list.end());
        else
            list.erase(list.begin(), list.begin() + left_out);
    };
    cut(turned.lines);
    cut(turned.ends);
    return turned;
}

std::vector<bundle> find_bundles(const std::vector<const polyline*>& lines, std::size_t most) {
    std::vector<bundle> bundles;
    for (auto& group : groups_of(ends_of(lines))) {
        if (group.size() < fewest || group.size() > most) continue;
        point sum{0, 0};
        for (const line_end& each : group) sum = {sum.x + each.outward.x, sum.y + each.outward.y};
        const double length = std::hypot(sum.x, sum.y);
        if (length == 0) continue;
        bundle& made = bundles.emplace_back();
        made.outward = {sum.x / length, sum.y / length};
        made.to_the_right = made.outward.x >= 0;
        // Clockwise beyond the ends on the right of the lines, the other way round on their left.
        const double turn = made.to_the_right ? 1 : -1;
        const point across{-made.outward.y * turn, made.outward.x * turn};
        std::ranges::sort(group, {},
                          [&](const line_end& each) { return each.at.x * across.x + each.at.y * across.y; });
        for (const line_end& each : group) {
            made.lines.push_back(each.line);
            made.ends.push_back(each.at);
        }
    }
    return bundles;
}

}  // namespace oxhost::map
