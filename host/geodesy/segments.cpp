#include <array>
#include <numbers>

#include "geodesy/reprojector.h"

namespace oxhost {
namespace {

constexpr std::array<double, 3> probes{0.25, 0.5, 0.75};  // an S crosses its chord at the middle
constexpr int deepest = 14;  // 16,384 parts; a jump of the target is cut no finer

/// The longitude that is nearest to another's.
double unwrapped(double longitude, double near) { return near + std::remainder(longitude - near, 360); }

/// A straight piece of the source's plane; longitudes go the shorter way round.
struct segment {
    segment(point from, point to, const crs& system) : start(from), end(to) {
        if (system.geographic && std::abs(to.x - from.x) > 180) end.x = unwrapped(to.x, from.x);
    }
    point at(double share) const {
        return {start.x + share * (end.x - start.x), start.y + share * (end.y - start.y)};
    }

    point start, end;
};

/// Metres between a place and the straight piece from `a` to `b` of the system's plane. Degrees count as the
/// metres that they are at the place on a sphere.
double distance_to_chord(point place, point a, point b, const crs& system) {
    double metres_x = system.metres_per_unit, metres_y = metres_x;
    if (system.geographic) {
        constexpr double radian = std::numbers::pi / 180;
        metres_y = 6371008.8 * radian;  // the IUGG mean radius
        metres_x = metres_y * std::cos(place.y * radian);
        a.x = unwrapped(a.x, place.x);
        b.x = unwrapped(b.x, place.x);
    }
    const double along_x = (b.x - a.x) * metres_x, along_y = (b.y - a.y) * metres_y;
    const double x = (place.x - a.x) * metres_x, y = (place.y - a.y) * metres_y;
    const double squared = along_x * along_x + along_y * along_y;
    const double foot = squared > 0 ? std::clamp((x * along_x + y * along_y) / squared, 0.0, 1.0) : 0;
    return std::hypot(x - foot * along_x, y - foot * along_y);
}

class divider {
public:
    divider(const transformation& way, double metres) : way_(way), metres_(metres) {}

    /// Shares of the segment's length at which it is to be divided, in order.
    std::vector<double> shares(const segment& whole) const {
        std::vector<double> found;
        const auto from = image(whole.start), to = image(whole.end);
        if (from && to) divide(whole, 0, *from, 1, *to, deepest, found);
        return found;
    }

private:
    std::optional<point> image(point place) const {
        polyline one{place};
        if (way_.apply(one)) return {};
        return one.front();
    }

    void divide(const segment& whole, double begin, point from, double end, point to, int left,
                std::vector<double>& found) const {
        if (left == 0) return;
        std::array<std::optional<point>, 3> images;
        bool bows = false;
        for (std::size_t i = 0; i < probes.size(); ++i) {
            images[i] = image(whole.at(begin + probes[i] * (end - begin)));
            bows = bows || (images[i] && distance_to_chord(*images[i], from, to, way_.target()) > metres_);
        }
        const auto& middle = images[1];
        if (!bows || !middle) return;
        const double half = (begin + end) / 2;
        divide(whole, begin, from, half, *middle, left - 1, found);
        found.push_back(half);
        divide(whole, half, *middle, end, to, left - 1, found);
    }

    const transformation& way_;
    double metres_;
};

}  // namespace

std::size_t densify(section_line& line, const transformation& way, double metres) {
    if (line.xy.size() < 2) return 0;
    const divider parts(way, metres);
    section_line result;
    const auto take = [&](std::size_t i) {
        result.xy.push_back(line.xy[i]);
        if (!line.z.empty()) result.z.push_back(line.z[i]);
        if (!line.m.empty()) result.m.push_back(line.m[i]);
    };
    take(0);
    for (std::size_t i = 1; i < line.xy.size(); ++i) {
        const segment whole(line.xy[i - 1], line.xy[i], way.source());
        for (const double share : parts.shares(whole)) {
            const auto between = [&](const std::vector<double>& values) {
                return values[i - 1] + share * (values[i] - values[i - 1]);
            };
            result.xy.push_back(whole.at(share));
            if (!line.z.empty()) result.z.push_back(between(line.z));
            if (!line.m.empty()) result.m.push_back(between(line.m));
        }
        take(i);
    }
    const std::size_t added = result.xy.size() - line.xy.size();
    line = std::move(result);
    return added;
}

std::optional<double> segment_deviation(const polyline& line, const polyline& result,
                                        const transformation& way) {
    if (line.empty() || line.size() != result.size()) return {};
    std::vector<std::pair<double, std::size_t>> longest;  // negative length, end
    for (std::size_t i = 1; i < line.size(); ++i)
        longest.emplace_back(-std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y), i);
    const std::size_t looked_at = std::min<std::size_t>(longest.size(), 8);
    std::ranges::nth_element(longest, longest.begin() + static_cast<std::ptrdiff_t>(looked_at));
    longest.resize(looked_at);
    polyline images;
    for (const auto& [length, end] : longest) {
        const segment whole(line[end - 1], line[end], way.source());
        for (const double share : probes) images.push_back(whole.at(share));
    }
    if (way.apply(images)) return {};
    double most = 0;
    for (std::size_t k = 0; k < images.size(); ++k) {
        const std::size_t end = longest[k / probes.size()].second;
        most = std::max(most, distance_to_chord(images[k], result[end - 1], result[end], way.target()));
    }
    return most;
}

}  // namespace oxhost
