#include "run/reprojection.h"

#include "base/language.h"
#include "session/interruption.h"
#include "session/messages.h"

namespace oxhost::run {

namespace {

std::vector<scene*> scenes_of(const order& wanted, project& opened) {
    auto scenes = wanted.scenes ? select_scenes(opened, *wanted.scenes) : listed_scenes(opened);
    if (!wanted.sources.empty()) scenes = scenes_in(scenes, wanted.sources);
    if (scenes.empty())
        throw failure(trouble::refused,
                      wanted.project.string() + words(": нет сцен разрезов для перепроецирования",
                                                      ": no profile scenes to reproject"));
    return scenes;
}

/// A target that the rules allow.
target goal_of(const order& wanted) {
    target read = read_target(wanted.target);
    use_rules(wanted.rules);
    if (const auto refusal = read.none() ? std::nullopt : refusal_of_target(read.proj4))
        throw failure(trouble::refused, *refusal);
    return read;
}

std::vector<std::string> warnings_of(project& opened, const std::vector<scene_result>& scenes,
                                     const std::string& target) {
    auto said = advise(opened, scenes, target);
    if (auto lengths = advise_on_lengths(opened, scenes, target)) said.push_back(std::move(*lengths));
    return said;
}

bool has_changed(const scene_result& result) {
    return result.came_to == outcome::reprojected || result.came_to == outcome::assigned ||
           result.came_to == outcome::reset;
}

run_records records_for(const order& wanted) {
    if (!wanted.no_undo && !wanted.dry_run) return run_records::kept;
    return wanted.policy == on_error::rollback ? run_records::until_end : run_records::none;
}

/// Scenes for another try: all that the last one did not reach.
std::vector<scene*> not_attempted(const std::vector<scene_result>& results) {
    std::vector<scene*> left;
    for (const scene_result& each : results)
        if (each.came_to == outcome::not_attempted) left.push_back(each.subject);
    return left;
}

}  // namespace

reprojection::reprojection(order wanted, std::unique_ptr<project> opened)
    : order_(std::move(wanted)),
      goal_(goal_of(order_)),
      project_(
          opened ? std::move(opened)
                 : open_project(order_.project, order_.dry_run ? open_mode::scratch : open_mode::read_write)),
      scenes_(scenes_of(order_, *project_)),
      utility_(order_.bundle),
      results_(before_run(scenes_)),
      warnings_(warnings_of(*project_, results_, goal_.proj4)) {}

void reprojection::perform(const failure_listener& tell) {
    before_ = kept_lines();
    project_->begin_run({goal_.given, goal_.proj4}, records_for(order_));
    messages::instance().forget();
    journal::instance().clear();
    std::size_t seen = 0;
    const auto after_apply = [&]() -> std::vector<scene*> {
        const std::size_t before = seen;
        seen = read_journal(results_, goal_.proj4, seen, tell);
        const bool went_on = seen > before && !ending_wished();  // else a further try would end the same
        return order_.policy == on_error::skip && went_on ? not_attempted(results_) : std::vector<scene*>{};
    };
    const served_project serving(project_.get());
    const lookahead ahead(*project_, scenes_, order_.threads);
    utility_.run(goal_, listed_scenes(*project_), scenes_, after_apply);
}

bool reprojection::interrupted() const {
    return ending_wished() && count(results_, outcome::not_attempted) > 0;
}

void reprojection::roll_back_if_failed() {
    const bool failed = count(results_, outcome::failed) > 0 || interrupted();
    if (order_.policy != on_error::rollback || !failed) return;
    project_->roll_back_run();
    for (scene_result& each : results_) {
        if (!has_changed(each)) continue;
        each.rolled_back = true;
        each.came_to = outcome::unchanged;
    }
}

record reprojection::told() { return {order_, goal_, warnings_, results_, before_, kept_lines()}; }

void reprojection::close() {
    project_->end_run();
    project_->close();
}

std::vector<polyline> reprojection::kept_lines() {
    std::vector<polyline> lines;
    if (!order_.keep_lines) return lines;
    lines.reserve(scenes_.size());
    for (const scene* each : scenes_) lines.push_back(project_->read_line(*each).xy);
    return lines;
}

}  // namespace oxhost::run
