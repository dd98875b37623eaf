#include "run/report.h"

#include "app/json.h"
#include "geodesy/measure.h"
#include "geodesy/transformation.h"

namespace oxhost::app {

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

std::optional<double> length(const polyline& line, const std::string& proj4) {
    if (proj4.empty()) return std::nullopt;
    return measured([&] { return geodesic_length(line, proj4); });
}

/// What PROJ did to the line, told by doing it again: where several operations serve a pair of
/// projections, the place decides.
json operation_of(const scene_result& of, const polyline& before, const std::string& target) {
    const auto way = transformation::between(of.source, target);
    polyline copy = before;
    way->apply(copy);
    const operation_info info = way->operation();
    return {{"name", or_null(info.name)},
            {"definition", or_null(info.definition)},
            {"accuracy_m", or_null(info.accuracy)},
            {"source_shift", or_null(info.source_shift)},
            {"target_shift", or_null(info.target_shift)}};
}

json failure_of(const scene_result& of) {
    if (!of.failure) return {};
    json told{{"reason", of.failure->reason}, {"vertex", nullptr}, {"x", nullptr}, {"y", nullptr}};
    if (const auto& at = of.failure->vertex) {
        told["vertex"] = at->vertex;
        told["x"] = at->at.x;
        told["y"] = at->at.y;
    }
    return told;
}

json scene_json(const run_record& run, std::size_t i) {
    const scene_result& of = run.results[i];
    const bool reprojected = of.came_to == outcome::reprojected;
    std::optional<line_shift> shift;
    if (reprojected)
        shift = measured([&] { return shift_between(run.before[i], of.source, run.after[i], of.of->proj4); });
    return {{"index", of.of->index},
            {"caption", of.of->caption},
            {"source_proj4", of.source},
            {"target_proj4", run.to.proj4},
            {"outcome", name_of(of.came_to)},
            {"rolled_back", of.rolled_back},
            {"vertices", run.before[i].size()},
            {"length_before_m", or_null(length(run.before[i], of.source))},
            {"length_after_m", or_null(length(run.after[i], of.of->proj4))},
            {"largest_ground_shift_m", shift ? json(shift->ground) : json()},
            {"largest_datum_shift_m", shift ? json(shift->datum) : json()},
            {"operation", reprojected ? operation_of(of, run.before[i], run.to.proj4) : json()},
            {"failure", failure_of(of)}};
}

std::string_view name_of(on_error policy) {
    return policy == on_error::stop ? "stop" : policy == on_error::skip ? "skip" : "rollback";
}

}  // namespace

std::string report_text(const run_record& of) {
    const proj_versions versions = versions_of_proj();
    json counts = json::object();
    for (int i = 0; i <= static_cast<int>(outcome::not_attempted); ++i)
        counts[std::string(name_of(static_cast<outcome>(i)))] = count(of.results, static_cast<outcome>(i));
    json scenes = json::array();
    for (std::size_t i = 0; i < of.results.size(); ++i) scenes.push_back(scene_json(of, i));
    const json report{{"project", of.command.project.string()},
                      {"target", {{"given", of.to.given}, {"proj4", of.to.proj4}}},
                      {"dry_run", of.command.dry_run},
                      {"on_error", name_of(of.command.policy)},
                      {"proj", {{"library", versions.library}, {"database", or_null(versions.database)}}},
                      {"warnings", of.warnings},
                      {"counts", counts},
                      {"scenes", std::move(scenes)}};
    return json_text(report) + '\n';
}

}  // namespace oxhost::app
