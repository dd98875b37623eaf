#include "geodesy/way_back.h"

#include <array>
#include <limits>

#include "geodesy/measure.h"

namespace oxhost {
namespace {

constexpr double lost = std::numeric_limits<double>::infinity();

bool stands_out(double metres, double tolerance) { return !(metres <= tolerance / 2); }

/// Metres on the ground between two places of a system.
double on_ground(point a, point b, const std::string& proj4) {
    if (!is_finite(a) || !is_finite(b)) return lost;
    return geodesic_length({a, b}, proj4).value_or(lost);
}

/// Metres in the plane; where those are too many, on the ground, since a place may have several coordinates.
double metres_between(point place, point returned, const crs& system, double tolerance) {
    if (!is_finite(returned)) return lost;
    if (system.geographic) return on_ground(place, returned, system.text);
    const double in_plane = std::hypot(returned.x - place.x, returned.y - place.y) * system.metres_per_unit;
    return in_plane <= tolerance ? in_plane : std::min(in_plane, on_ground(place, returned, system.text));
}

/// The longitude/latitude system of a text, on the same datum.
std::string geographic_text(const crs& system) {
    constexpr std::array keys{"datum", "ellps", "a",   "b",   "rf",  "f",  "es",      "e",
                              "R",     "R_A",   "R_V", "R_a", "R_g", "pm", "towgs84", "nadgrids"};
    std::string text = "+proj=longlat";
    for (const auto& token : system.tokens.tokens()) {
        if (std::ranges::find(keys, token.key) == keys.end()) continue;
        text += " +" + token.key;
        if (const auto value = system.tokens.value(token.key); value && !value->empty()) text += '=' + *value;
    }
    return text + " +no_defs";
}

point moved(point place, const std::string& from, const std::string& to) {
    polyline one{place};
    if (transformation::between(from, to)->apply(one)) return {lost, lost};
    return one.front();
}

/// Both projections on their own: what the source's own way back makes of a place, and the target's of its
/// image. No datum shift is taken back, so that none has to be its own inverse.
double projections_miss(point place, point image, const transformation& way) {
    const std::string &source = way.source().text, &target = way.target().text;
    const std::string source_base = geographic_text(way.source()),
                      target_base = geographic_text(way.target());
    const point again = moved(moved(place, source, source_base), source_base, source);
    const point meant = moved(place, source, target_base);
    const point found = moved(image, target, target_base);
    return std::max(on_ground(place, again, source), on_ground(meant, found, target_base));
}

return_test worst_return(const polyline& line, const polyline& result, const std::vector<std::size_t>& tested,
                         const polyline& back, const transformation& way, double tolerance) {
    return_test worst;
    for (std::size_t k = 0; k < tested.size(); ++k) {
        const point& place = line[tested[k]];
        double metres = metres_between(place, back[k], way.source(), tolerance);
        if (stands_out(metres, tolerance))
            metres = std::min(metres, projections_miss(place, result[tested[k]], way));
        if (metres > worst.metres) worst = {tested[k], metres};
    }
    return worst;
}

polyline brought_back(const polyline& result, const std::vector<std::size_t>& tested,
                      const transformation& way) {
    polyline back = vertices_at(result, tested);
    way.bring_back(back);
    return back;
}

}  // namespace

polyline vertices_at(const polyline& line, const std::vector<std::size_t>& places) {
    polyline found;
    found.reserve(places.size());
    for (const std::size_t i : places) found.push_back(line[i]);
    return found;
}

std::vector<std::size_t> tested_vertices(const polyline& line) {
    constexpr std::size_t short_line = 16, stride = 32;
    std::vector<std::size_t> tested;
    for (std::size_t i = 0; i < line.size(); i += line.size() <= short_line ? 1 : stride) tested.push_back(i);
    if (line.size() <= short_line) return tested;
    const auto [west, east] = std::ranges::minmax_element(line, {}, &point::x);
    const auto [south, north] = std::ranges::minmax_element(line, {}, &point::y);
    for (const auto& outermost : {west, east, south, north})
        tested.push_back(static_cast<std::size_t>(outermost - line.begin()));
    tested.push_back(line.size() - 1);
    return tested;
}

return_test test_return(const polyline& line, const polyline& result, const transformation& way,
                        double tolerance, std::optional<polyline> returned) {
    const auto tested = tested_vertices(line);
    if (!returned) returned = brought_back(result, tested, way);
    const return_test worst = worst_return(line, result, tested, *returned, way, tolerance);
    if (!stands_out(worst.metres, tolerance) || tested.size() == line.size()) return worst;
    std::vector<std::size_t> all(line.size());
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
    return worst_return(line, result, all, brought_back(result, all, way), way, tolerance);
}

}  // namespace oxhost
