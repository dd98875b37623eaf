#include "run/judgement.h"

#include "geodesy/reprojector.h"
#include "geodesy/way_back.h"

namespace oxhost::run {

namespace {

/// The shift at the vertices whose way back is tested, and how far segments bow.
void judge_way(judgement& judged, const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    const polyline& after = told.after[i];
    const auto way = transformation::between(result.source, told.goal.proj4);
    section_line line(told.before[i]);
    if (result.added_vertices) densify(line, *way, told.wanted.rules.densify);
    if (line.xy.size() != after.size()) return;
    polyline tested_before, tested_after;
    for (const std::size_t vertex : tested_vertices(line.xy)) {
        tested_before.push_back(line.xy[vertex]);
        tested_after.push_back(after[vertex]);
    }
    judged.shift = shift_between(tested_before, result.source, tested_after, told.goal.proj4);
    judged.segment_deviation = segment_deviation(line.xy, after, *way);
}

/// What PROJ did to the line, told by doing it again: where several operations serve a pair of
/// projections, the place decides.
operation_info operation_of(const scene_result& result, const polyline& before, const std::string& target) {
    const auto way = transformation::between(result.source, target);
    if (way->is_single()) return way->operation();
    polyline copy = before.empty() ? polyline() : polyline{before.back()};
    way->apply(copy);
    return way->operation();
}

}  // namespace

judgement judge(const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    const polyline &before = told.before[i], &after = told.after[i];
    const std::string& now = result.subject->proj4;
    judgement judged;
    judged.length_before = measured(result.source, [&] { return geodesic_length(before, result.source); });
    judged.length_after = measured(now, [&] { return geodesic_length(after, now); });
    judged.planar_before = measured(result.source, [&] { return planar_length(before, result.source); });
    judged.planar_after = measured(now, [&] { return planar_length(after, now); });
    if (result.came_to != outcome::reprojected) return judged;
    // first, while the segments of this line are remembered
    const auto share = measured(now, [&] { return length_distortion(after, now); });
    if (share && !crs_of(now)->geographic) judged.scale_error_percent = 100 * *share;
    judge_way(judged, told, i);
    judged.operation = operation_of(result, before, told.goal.proj4);
    return judged;
}

std::optional<number_shift> shift_on_map(const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    if (result.came_to != outcome::reprojected) return std::nullopt;
    const std::string& now = result.subject->proj4;
    return measured(now, [&] { return shift_of_numbers(told.before[i], result.source, told.after[i], now); });
}

std::optional<polyline> placed(const polyline& line, const std::string& proj4) {
    if (line.empty()) return std::nullopt;
    return measured(proj4, [&] { return to_wgs84(line, proj4); });
}

}  // namespace oxhost::run
