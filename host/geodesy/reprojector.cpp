#include "geodesy/reprojector.h"

#include <set>

#include "base/language.h"
#include "base/numbers.h"
#include "geodesy/measure.h"

namespace oxhost {
namespace {

reprojection_rules& rules() {
    static reprojection_rules only;
    return only;
}

/// Every vertex of a short line; of a long one the ends, the outermost, where projections go wrong first, and
/// some between.
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

/// Metres in the plane; where those are too many, on the ground, since a place may have several coordinates.
double metres_between(point place, point returned, const crs& system, double tolerance) {
    if (!is_finite(returned)) return std::numeric_limits<double>::infinity();
    const double in_plane = std::hypot(returned.x - place.x, returned.y - place.y) * system.metres_per_unit;
    if (!system.geographic && in_plane <= tolerance) return in_plane;
    const auto on_ground = geodesic_length({place, returned}, system.text);
    if (!on_ground) return in_plane;
    return system.geographic ? *on_ground : std::min(in_plane, *on_ground);
}

struct return_test {
    std::size_t vertex = 0;
    double metres = 0;
};

return_test worst_return(const polyline& line, const polyline& result, const std::vector<std::size_t>& tested,
                         const transformation& way, double tolerance) {
    polyline back;
    back.reserve(tested.size());
    for (const std::size_t i : tested) back.push_back(result[i]);
    way.bring_back(back);
    return_test worst;
    for (std::size_t k = 0; k < tested.size(); ++k) {
        const point& place = line[tested[k]];
        double metres = metres_between(place, back[k], way.source(), tolerance);
        // Where several operations serve a pair, the way back may have chosen another one.
        if (!(metres <= tolerance))
            metres =
                std::min(metres, metres_between(place, way.there_and_back(place), way.source(), tolerance));
        if (metres > worst.metres) worst = {tested[k], metres};
    }
    return worst;
}

return_test judge_return(const polyline& line, const polyline& result, const transformation& way,
                         double tolerance) {
    const auto tested = tested_vertices(line);
    return_test worst = worst_return(line, result, tested, way, tolerance);
    if (worst.metres <= tolerance / 10 || tested.size() == line.size()) return worst;
    std::vector<std::size_t> all(line.size());
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
    return worst_return(line, result, all, way, tolerance);
}

std::string missed_by(double metres, double tolerance) {
    if (!std::isfinite(metres))
        return std::string(in_language("не возвращается из целевой проекции на своё место",
                                       "does not come back from the target projection to its place"));
    const std::string size = number_text(metres < 10 ? std::round(metres * 1000) / 1000 : std::round(metres));
    const std::string allowed = number_text(tolerance);
    return std::string(in_language(
        "возвращается из целевой проекции в " + size + " м от своего места (допуск " + allowed + " м)",
        "comes back from the target projection " + size + " m from its place (allowed: " + allowed + " m)"));
}

}  // namespace

const reprojection_rules& current_rules() { return rules(); }
void use_rules(const reprojection_rules& wanted) { rules() = wanted; }

std::optional<std::string> refusal_of_target(std::string_view proj4) {
    if (current_rules().one_way || has_inverse(proj4)) return {};
    const std::string text(proj4);
    return std::string(in_language(
        "проекция \"" + text + "\" не имеет обратной: вернуть линии из неё нельзя (--one-way допускает это)",
        "projection \"" + text +
            "\" has no inverse: lines cannot be brought back from it (--one-way allows that)"));
}

reprojected_line reproject(section_line& line, const transformation& way) {
    reprojected_line done;
    polyline result = line.xy;
    done.failure = way.apply(result);
    if (done.failure) return done;
    const reprojection_rules& wanted = current_rules();
    if (way.has_return()) {
        const auto [vertex, metres] = judge_return(line.xy, result, way, wanted.return_tolerance);
        done.return_error = metres;
        if (!(metres <= wanted.return_tolerance)) {
            done.failure = {vertex, line.xy[vertex], missed_by(metres, wanted.return_tolerance)};
            return done;
        }
    }
    if (wanted.densify > 0) done.added_vertices = densify(line, way, wanted.densify);
    if (done.added_vertices == 0) {
        line.xy = std::move(result);
    } else {
        done.failure = way.apply(line.xy);
    }
    return done;
}

}  // namespace oxhost
