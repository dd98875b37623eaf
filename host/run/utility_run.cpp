#include "run/utility_run.h"

#include <set>

#include "run/selection.h"
#include "session/journal.h"
#include "session/messages.h"

namespace oxhost::run {

namespace {

/// The target was chosen in the utility's dialog, which may have been applied several times: what a run came
/// to is told by the scenes, and by whether any of it changed the line.
void judge_by_scenes(std::vector<scene_result>& results) {
    std::set<std::size_t> moved;
    for (const scene_update& each : journal::instance().updates())
        if (each.line_stored) moved.insert(each.scene);
    for (scene_result& each : results) {
        if (each.came_to != outcome::reset && each.came_to != outcome::unchanged) continue;
        const std::string& now = each.subject->proj4;
        each.came_to = moved.contains(each.subject->index) ? outcome::reprojected
                       : now == each.source                ? outcome::unchanged
                       : now.empty()                       ? outcome::reset
                                                           : outcome::assigned;
    }
}

}  // namespace

std::vector<scene_result> run_utility(project* opened, shell::bundle_host& host,
                                      const std::string& utility_id) {
    messages::instance().forget();
    journal::instance().clear();
    auto results = before_run(opened ? listed_scenes(*opened) : std::vector<scene*>{});
    {
        const served_project serving(opened);
        if (opened) opened->begin_run({utility_id, {}}, run_records::kept);
        host.run(utility_id);
    }
    read_journal(results, {}, 0);
    judge_by_scenes(results);
    if (opened) opened->end_run();
    return results;
}

}  // namespace oxhost::run
