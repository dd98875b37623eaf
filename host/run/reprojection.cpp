#include "run/reprojection.h"

#include "session/messages.h"

namespace oxhost::run {

namespace {

std::vector<scene*> scenes_of(const order& wanted, project& opened) {
    auto scenes = wanted.scenes ? select_scenes(opened, *wanted.scenes) : listed_scenes(opened);
    if (!wanted.sources.empty()) scenes = scenes_in(scenes, wanted.sources);
    if (scenes.empty())
        throw failure(trouble::refused, wanted.project.string() + ": no profile scenes to reproject");
    return scenes;
}

bool has_changed(const scene_result& result) {
    return result.came_to == outcome::reprojected || result.came_to == outcome::assigned ||
           result.came_to == outcome::reset;
}

/// Scenes for another try: all that the last one did not reach.
std::vector<scene*> not_attempted(const std::vector<scene_result>& results) {
    std::vector<scene*> left;
    for (const scene_result& each : results)
        if (each.came_to == outcome::not_attempted) left.push_back(each.subject);
    return left;
}

}  // namespace

reprojection::reprojection(order wanted)
    : order_(std::move(wanted)),
      goal_(read_target(order_.target)),
      project_(open_project(order_.project, order_.dry_run ? open_mode::scratch : open_mode::read_write)),
      scenes_(scenes_of(order_, *project_)),
      utility_(order_.bundle),
      results_(before_run(scenes_)),
      warnings_(advise(*project_, results_, goal_.proj4)) {}

void reprojection::perform() {
    before_ = kept_lines();
    if (order_.policy == on_error::rollback)
        for (const scene* each : scenes_) states_.push_back(project_->state(each->index));
    messages::instance().forget();
    journal::instance().clear();
    std::size_t seen = 0;
    const auto after_apply = [&]() -> std::vector<scene*> {
        const std::size_t before = seen;
        seen = read_journal(results_, goal_.proj4, seen);
        const bool went_on = seen > before;  // else a further try would end the same way
        return order_.policy == on_error::skip && went_on ? not_attempted(results_) : std::vector<scene*>{};
    };
    const served_project serving(project_.get());
    utility_.run(goal_, listed_scenes(*project_), scenes_, after_apply);
}

void reprojection::roll_back_if_failed() {
    if (order_.policy != on_error::rollback || count(results_, outcome::failed) == 0) return;
    std::vector<scene_state> changed;
    for (std::size_t i = 0; i < results_.size(); ++i)
        if (has_changed(results_[i])) changed.push_back(states_[i]);
    if (!changed.empty()) project_->restore(changed);
    for (scene_result& each : results_) {
        if (!has_changed(each)) continue;
        each.rolled_back = true;
        each.came_to = outcome::unchanged;
    }
}

record reprojection::told() { return {order_, goal_, warnings_, results_, before_, kept_lines()}; }

void reprojection::close() { project_->close(); }

std::vector<polyline> reprojection::kept_lines() {
    std::vector<polyline> lines;
    if (!order_.keep_lines) return lines;
    lines.reserve(scenes_.size());
    for (const scene* each : scenes_) lines.push_back(project_->read_line(*each).xy);
    return lines;
}

}  // namespace oxhost::run
