#include "run/report.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "geodesy/measure.h"
#include "geodesy/reprojector.h"
#include "geodesy/transformation.h"
#include "geodesy/way_back.h"

namespace oxhost::run {

namespace {

using json = nlohmann::ordered_json;

template <class T>
json or_null(const std::optional<T>& value) {
    return value ? json(*value) : json();
}

json or_null(const std::string& text) { return text.empty() ? json() : json(text); }

/// A text that PROJ refuses, or an empty one, measures nothing.
template <class Measure>
auto measured(Measure&& measure) -> decltype(measure()) {
    try {
        return measure();
    } catch (const std::invalid_argument&) {
        return std::nullopt;
    }
}

using line_measure = std::optional<double> (*)(const polyline& line, std::string_view proj4);

json measured(line_measure measure, const polyline& line, const std::string& proj4) {
    if (proj4.empty()) return {};
    return or_null(measured([&] { return measure(line, proj4); }));
}

json percent(const json& share) { return share.is_null() ? share : json(100 * share.get<double>()); }

/// What only a line that was reprojected has.
struct judgement {
    std::optional<line_shift> shift;
    std::optional<double> deviation;
};

judgement judge(const scene_result& result, const record& told, const polyline& before,
                const polyline& after) {
    judgement found;
    if (result.came_to != outcome::reprojected) return found;
    const auto way = transformation::between(result.source, told.goal.proj4);
    section_line line(before);
    if (result.added_vertices) densify(line, *way, told.wanted.rules.densify);
    if (line.xy.size() != after.size()) return found;
    polyline tested_before, tested_after;
    for (const std::size_t i : tested_vertices(line.xy)) {
        tested_before.push_back(line.xy[i]);
        tested_after.push_back(after[i]);
    }
    found.shift = shift_between(tested_before, result.source, tested_after, told.goal.proj4);
    found.deviation = segment_deviation(line.xy, after, *way);
    return found;
}

/// What PROJ did to the line, told by doing it again: where several operations serve a pair of
/// projections, the place decides.
json operation_of(const scene_result& result, const polyline& before, const std::string& target) {
    const auto way = transformation::between(result.source, target);
    polyline copy = before.empty() ? polyline() : polyline{before.back()};
    way->apply(copy);
    const operation_info info = way->operation();
    return {{"name", or_null(info.name)},
            {"definition", or_null(info.definition)},
            {"accuracy_m", or_null(info.accuracy)},
            {"source_shift", or_null(info.source_shift)},
            {"target_shift", or_null(info.target_shift)}};
}

json failure_of(const scene_result& result) {
    if (!result.failure) return {};
    json told{{"reason", result.failure->reason}, {"vertex", nullptr}, {"x", nullptr}, {"y", nullptr}};
    if (const auto& failed = result.failure->vertex) {
        told["vertex"] = failed->vertex;
        told["x"] = failed->at.x;
        told["y"] = failed->at.y;
    }
    return told;
}

json scene_json(const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    const scene& subject = *result.subject;
    const polyline& before = told.before[i];
    const polyline& after = told.after[i];
    const bool reprojected = result.came_to == outcome::reprojected;
    const auto [shift, deviation] = judge(result, told, before, after);
    const bool plane = reprojected && !crs_of(subject.proj4)->geographic;
    return {
        {"index", subject.index},
        {"caption", subject.caption},
        {"source_proj4", result.source},
        {"target_proj4", told.goal.proj4},
        {"outcome", name_of(result.came_to)},
        {"rolled_back", result.rolled_back},
        {"vertices", before.size()},
        {"added_vertices", result.added_vertices},
        {"length_before_m", measured(geodesic_length, before, result.source)},
        {"length_after_m", measured(geodesic_length, after, subject.proj4)},
        {"planar_length_before_m", measured(planar_length, before, result.source)},
        {"planar_length_after_m", measured(planar_length, after, subject.proj4)},
        {"scale_error_percent", plane ? percent(measured(length_distortion, after, subject.proj4)) : json()},
        {"segment_deviation_m", or_null(deviation)},
        {"return_error_m", or_null(result.return_error)},
        {"largest_ground_shift_m", shift ? json(shift->ground) : json()},
        {"largest_datum_shift_m", shift ? json(shift->datum) : json()},
        {"operation", reprojected ? operation_of(result, before, told.goal.proj4) : json()},
        {"failure", failure_of(result)}};
}

std::string_view name_of(on_error policy) {
    return policy == on_error::stop ? "stop" : policy == on_error::skip ? "skip" : "rollback";
}

}  // namespace

std::string json_text(const json& value) { return value.dump(2, ' ', false, json::error_handler_t::replace); }

std::string report_text(const record& told) {
    const proj_versions versions = versions_of_proj();
    json counts = json::object();
    for (int i = 0; i <= static_cast<int>(outcome::not_attempted); ++i)
        counts[std::string(name_of(static_cast<outcome>(i)))] = count(told.results, static_cast<outcome>(i));
    const json head{{"project", told.wanted.project.string()},
                    {"target", {{"given", told.goal.given}, {"proj4", told.goal.proj4}}},
                    {"dry_run", told.wanted.dry_run},
                    {"on_error", name_of(told.wanted.policy)},
                    {"proj", {{"library", versions.library}, {"database", or_null(versions.database)}}},
                    {"warnings", told.warnings},
                    {"counts", counts},
                    {"scenes", json::array()}};
    // Scene by scene: a tree of a hundred thousand of them would take many times the room of the text.
    std::string text = json_text(head);
    text.resize(text.rfind(']'));
    for (std::size_t i = 0; i < told.results.size(); ++i) {
        text += i == 0 ? "\n    " : ",\n    ";
        for (const char c : json_text(scene_json(told, i))) text.append(1, c).append(c == '\n' ? 4 : 0, ' ');
    }
    return text + "\n  ]\n}\n";
}

}  // namespace oxhost::run
