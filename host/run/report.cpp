#include "run/report.h"

#include <nlohmann/json.hpp>

#include "geodesy/transformation.h"
#include "run/judgement.h"

namespace oxhost::run {

namespace {

using json = nlohmann::ordered_json;

template <class T>
json or_null(const std::optional<T>& value) {
    return value ? json(*value) : json();
}

json or_null(const std::string& text) { return text.empty() ? json() : json(text); }

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

json operation_json(const std::optional<operation_info>& info) {
    if (!info) return {};
    return {{"name", or_null(info->name)},
            {"definition", or_null(info->definition)},
            {"accuracy_m", or_null(info->accuracy)},
            {"source_shift", or_null(info->source_shift)},
            {"target_shift", or_null(info->target_shift)}};
}

json scene_json(const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    const judgement judged = judge(told, i);
    const auto& shift = judged.shift;
    return {{"index", result.subject->index},
            {"caption", result.subject->caption},
            {"source_proj4", result.source},
            {"target_proj4", told.goal.proj4},
            {"outcome", name_of(result.came_to)},
            {"rolled_back", result.rolled_back},
            {"vertices", told.before[i].size()},
            {"added_vertices", result.added_vertices},
            {"length_before_m", or_null(judged.length_before)},
            {"length_after_m", or_null(judged.length_after)},
            {"planar_length_before_m", or_null(judged.planar_before)},
            {"planar_length_after_m", or_null(judged.planar_after)},
            {"scale_error_percent", or_null(judged.scale_error_percent)},
            {"segment_deviation_m", or_null(judged.segment_deviation)},
            {"return_error_m", or_null(result.return_error)},
            {"largest_ground_shift_m", shift ? json(shift->ground) : json()},
            {"largest_datum_shift_m", shift ? json(shift->datum) : json()},
            {"operation", operation_json(judged.operation)},
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
