#include "run/utility_run.h"

#include "run/selection.h"
#include "session/journal.h"
#include "session/messages.h"

namespace oxhost::run {

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
    if (opened) opened->end_run();
    return results;
}

}  // namespace oxhost::run
