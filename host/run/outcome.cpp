#include "run/outcome.h"

#include <algorithm>
#include <array>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"

namespace oxhost::run {

namespace {

struct outcome_words {
    std::string_view english, russian;
};

constexpr std::array<outcome_words, 6> outcome_names{{{"reprojected", "перепроецировано"},
                                                      {"assigned", "назначена проекция"},
                                                      {"reset", "сброшена проекция"},
                                                      {"unchanged", "без изменений"},
                                                      {"failed", "с ошибкой"},
                                                      {"not attempted", "не обработано"}}};

std::optional<scene_failure> failure_of(const scene_update& update) {
    if (update.store_failure) return scene_failure{*update.store_failure, {}};
    if (update.transform_failure)
        return scene_failure{update.transform_failure->reason, update.transform_failure};
    if (update.setup_failure) return scene_failure{*update.setup_failure, {}};
    return std::nullopt;
}

outcome outcome_of(const scene_update& update, const std::string& source, const std::string& target) {
    if (update.line_stored) return outcome::reprojected;
    if (!update.text_stored || source == target) return outcome::unchanged;
    return target.empty() ? outcome::reset : outcome::assigned;
}

}  // namespace

std::string_view name_of(outcome told) { return outcome_names[static_cast<std::size_t>(told)].english; }

std::vector<scene_result> before_run(const std::vector<scene*>& scenes) {
    std::vector<scene_result> results;
    results.reserve(scenes.size());
    for (scene* each : scenes)
        results.push_back({.subject = each, .source = each->proj4, .failure = {}, .return_error = {}});
    return results;
}

std::size_t read_journal(std::vector<scene_result>& results, const std::string& target, std::size_t seen,
                         const failure_listener& tell) {
    const auto& updates = journal::instance().updates();
    for (; seen < updates.size(); ++seen) {
        const scene_update& update = updates[seen];
        if (update.declined) continue;
        const auto found = std::ranges::lower_bound(results, update.scene, {},
                                                    [](const scene_result& r) { return r.subject->index; });
        if (found == results.end() || found->subject->index != update.scene) continue;
        found->failure = failure_of(update);
        found->came_to = found->failure ? outcome::failed : outcome_of(update, found->source, target);
        found->return_error = update.return_error;
        if (found->failure && tell) tell(*found);
        found->added_vertices = update.line_stored ? update.added_vertices : 0;
    }
    return seen;
}

std::size_t count(const std::vector<scene_result>& results, outcome counted) {
    return static_cast<std::size_t>(std::ranges::count(results, counted, &scene_result::came_to));
}

std::string failure_line(const scene_result& result) {
    const std::string file = result.subject->owner->path().string();
    const std::string place = file + ": " + name_of(*result.subject) + ": ";
    const auto& [reason, vertex] = *result.failure;
    if (!vertex)
        return reason.starts_with(file) ? reason : place + reason;  // the project's own refusals name it
    return place + words("вершина ", "vertex ") + std::to_string(vertex->vertex) + " (" +
           number_text(vertex->at.x) + ", " + number_text(vertex->at.y) + "): " + vertex->reason;
}

std::string summary(const std::vector<scene_result>& results) {
    std::string line;
    for (std::size_t i = 0; i < outcome_names.size(); ++i) {
        const std::size_t n = count(results, static_cast<outcome>(i));
        if (n == 0) continue;
        const std::string number = std::to_string(n);
        append_item(line, in_language(std::string(outcome_names[i].russian) + ": " + number,
                                      number + ' ' + std::string(outcome_names[i].english)));
    }
    std::size_t added = 0;
    for (const scene_result& each : results) added += each.rolled_back ? 0 : each.added_vertices;
    const std::string number = std::to_string(added);
    if (added) line += in_language("; добавлено вершин: " + number, "; " + number + " vertices added");
    return line;
}

}  // namespace oxhost::run
