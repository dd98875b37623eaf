#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "base/language.h"
#include "base/numbers.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/pair_operations.h"
#include "geodesy/transformation.h"
#include "run/reprojection.h"

namespace oxhost::run {

namespace {

std::string metres_text(double metres) {
    const double step = metres < 10 ? 100 : 1;
    return number_text(std::round(metres * step) / step) + words(" м", " m");
}

bool stands_for(const std::string& code, const std::string& proj4) {
    const auto text = import_crs(code);
    return text && *text == proj4;
}

/// The code that the scene was imported with, if its projection still is that system.
std::string imported_code(project& opened, const scene& asked) {
    const auto column = std::ranges::find(opened.fields(), "source_crs", &field::name);
    if (column == opened.fields().end()) return {};
    const auto values = opened.read_values(asked);
    const auto* code =
        std::get_if<std::string>(&values[static_cast<std::size_t>(column - opened.fields().begin())]);
    return code && code->starts_with("EPSG:") && stands_for(*code, asked.proj4) ? *code : std::string();
}

coded_system source_of(project& opened, const scene& asked) {
    std::string code = imported_code(opened, asked);
    if (code.empty()) code = exact_code(asked.proj4);
    return {std::move(code), asked.proj4};
}

coded_system target_of(const target& goal) {
    const bool digits = goal.given.find_first_not_of("0123456789") == goal.given.npos;
    const std::string given = digits ? "EPSG:" + goal.given : goal.given;
    return {given.starts_with("EPSG:") ? given : exact_code(goal.proj4), goal.proj4};
}

std::string line_about(project& opened, const scene& example, std::size_t scenes, const coded_system& to) {
    const coded_system from = source_of(opened, example);
    const auto way = transformation::between(from.proj4, to.proj4);
    const auto line = opened.read_line(example).xy;
    if (line.empty()) return {};
    polyline moved = line;
    way->apply(moved);
    const operation_info info = way->operation();
    std::string shifts = info.source_shift;
    if (!info.target_shift.empty()) shifts += (shifts.empty() ? "" : " + ") + info.target_shift;
    std::string told = words("операция: ", "operation: ") +
                       (from.code.empty() ? short_description(from.proj4, current_language()) : from.code) +
                       words(", сцен: ", ", scenes: ") + std::to_string(scenes) + ": " +
                       (shifts.empty() ? info.name : shifts) +
                       (info.accuracy ? words(", точность ", ", accuracy ") + metres_text(*info.accuracy)
                                      : words(", точность неизвестна", ", accuracy unknown"));
    pair_operations beside;
    if (!from.code.empty() && !to.code.empty())
        beside = operations_beside(from, to, line.front(), info.accuracy);
    if (!way->is_needed() && !beside.unexpressed) return {};
    if (beside.better)
        told += words("; точнее была бы ", "; more accurate would be ") + beside.better->name + ", " +
                metres_text(beside.better->accuracy) +
                words(", но здесь нет сетки ", ", but here is no grid ") + beside.better->grid;
    if (beside.unexpressed)
        told += words("; тексты proj4 не могут выразить операцию ", "; proj4 texts cannot express ") +
                beside.unexpressed->name +
                words(": без неё линии смещены на ", ": without it lines are off by ") +
                metres_text(beside.unexpressed->metres);
    return told;
}

}  // namespace

std::vector<std::string> reprojection::operations() {
    constexpr std::size_t most_told = 8;
    std::map<std::string, std::pair<const scene*, std::size_t>> pairs;
    for (const scene_result& each : results_)
        if (!each.source.empty() && !goal_.none()) {
            auto& [example, count] = pairs.try_emplace(each.source, each.subject, 0).first->second;
            ++count;
        }
    const coded_system to = pairs.empty() ? coded_system{} : target_of(goal_);
    std::vector<std::string> told;
    std::size_t looked_at = 0;
    for (const auto& [source, group] : pairs) {
        if (looked_at == most_told) break;
        ++looked_at;
        try {
            if (auto line = line_about(*project_, *group.first, group.second, to); !line.empty())
                told.push_back(std::move(line));
        } catch (const std::invalid_argument&) {  // no way between: the run says it of each scene
        }
    }
    if (looked_at < pairs.size())
        told.push_back(
            words("операция: и ещё исходных проекций: ", "operation: and further source projections: ") +
            std::to_string(pairs.size() - looked_at));
    return told;
}

}  // namespace oxhost::run
