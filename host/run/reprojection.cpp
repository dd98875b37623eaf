#include "run/reprojection.h"

#include <iostream>

#include "base/files.h"
#include "map/section_map.h"
#include "run/advice.h"
#include "run/outcome.h"
#include "run/report.h"
#include "run/reprojection_utility.h"
#include "run/selection.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

/// Everything that can be found wrong is found here, before anything changes.
void check_outputs(const reprojection& command) {
    std::error_code ignored;
    for (const fs::path& out : {command.report, command.map}) {
        if (out.empty()) continue;
        check_writable(out);
        if (fs::equivalent(out, command.project, ignored))
            throw failure(exit_code::nothing_done, out.string() + ": is the project itself");
    }
    if (!command.map.empty() && command.map == command.report)
        throw failure(exit_code::nothing_done, command.map.string() + ": cannot be both report and map");
}

/// The lines of some scenes as they are stored now, where a report or map will want them.
std::vector<polyline> lines_of(project& in, const std::vector<scene*>& scenes) {
    std::vector<polyline> lines;
    lines.reserve(scenes.size());
    for (const scene* each : scenes) lines.push_back(in.read_line(*each));
    return lines;
}

std::vector<scene_state> states_of(project& in, const std::vector<scene*>& scenes) {
    std::vector<scene_state> states;
    for (const scene* each : scenes) states.push_back(in.state(each->index));
    return states;
}

/// Puts back what the run changed.
void roll_back(project& in, const std::vector<scene_state>& states, std::vector<scene_result>& results) {
    std::vector<scene_state> changed;
    std::vector<scene_result*> undone;
    for (std::size_t i = 0; i < results.size(); ++i) {
        const outcome came_to = results[i].came_to;
        if (came_to != outcome::reprojected && came_to != outcome::assigned && came_to != outcome::reset)
            continue;
        changed.push_back(states[i]);
        undone.push_back(&results[i]);
    }
    if (!changed.empty()) in.restore(changed);
    for (scene_result* each : undone) {
        each->rolled_back = true;
        each->came_to = outcome::unchanged;
    }
}

/// Scenes for another try: all that the last one did not reach.
std::vector<scene*> not_attempted(const std::vector<scene_result>& results) {
    std::vector<scene*> left;
    for (const scene_result& each : results)
        if (each.came_to == outcome::not_attempted) left.push_back(each.of);
    return left;
}

class current_project_guard {
public:
    explicit current_project_guard(project& opened) { set_current_project(&opened); }
    ~current_project_guard() { set_current_project(nullptr); }
    current_project_guard(const current_project_guard&) = delete;
    current_project_guard& operator=(const current_project_guard&) = delete;
};

/// Drives the plug-in until the policy is content.
void run_plug_in(const reprojection& command, reprojection_utility& utility, const target& to, project& in,
                 std::vector<scene_result>& results, const std::vector<scene*>& wanted) {
    messages::instance().use(std::make_unique<console_messages>(
        console::standard(), console_options{.questions = command.questions, .quiet = command.quiet}));
    messages::instance().forget();
    journal::instance().clear();
    std::size_t seen = 0;
    const auto after_apply = [&]() -> std::vector<scene*> {
        const std::size_t before = seen;
        seen = read_journal(results, to.proj4, seen);
        const bool went_on = seen > before;  // else a further try would end the same way
        return command.policy == on_error::skip && went_on ? not_attempted(results) : std::vector<scene*>{};
    };
    const current_project_guard serving(in);
    utility.run(to, listed_scenes(in), wanted, after_apply);
}

exit_code code_of(const std::vector<scene_result>& results) {
    if (count(results, outcome::failed)) return exit_code::scene_failed;
    if (!count(results, outcome::not_attempted)) return exit_code::done;
    return messages::instance().declined() ? exit_code::answered_no : exit_code::nothing_done;
}

void tell(const reprojection& command, const std::vector<scene_result>& results) {
    for (const scene_result& each : results)
        if (each.failure) std::cerr << failure_line(each) << '\n';
    if (command.quiet) return;
    std::cout << summary(results);
    if (std::ranges::any_of(results, &scene_result::rolled_back))
        std::cout << in_language("; все сцены возвращены к прежнему виду",
                                 "; every scene is as it was before");
    std::cout << '\n';
    if (command.dry_run)
        std::cout << in_language("Пробный запуск: проект не изменён", "Dry run: the project is unchanged")
                  << '\n';
}

}  // namespace

exit_code reproject(const reprojection& command) try {
    const target to = read_target(command.to);
    const auto opened =
        open_project(command.project, command.dry_run ? open_mode::scratch : open_mode::read_write);
    const auto wanted = command.all ? listed_scenes(*opened) : select_scenes(*opened, command.scenes);
    if (wanted.empty())
        throw failure(exit_code::nothing_done, command.project.string() + ": no profile scenes to reproject");
    check_outputs(command);
    reprojection_utility utility(command.bundle);

    auto results = before_run(wanted);
    const auto warnings = advise(*opened, results, to.proj4);
    if (!command.quiet)
        for (const std::string& each : warnings)
            std::cerr << in_language("предупреждение: ", "warning: ") << each << '\n';
    const bool wants_lines = !command.report.empty() || !command.map.empty();
    const auto before = wants_lines ? lines_of(*opened, wanted) : std::vector<polyline>{};
    const auto states =
        command.policy == on_error::rollback ? states_of(*opened, wanted) : std::vector<scene_state>{};

    run_plug_in(command, utility, to, *opened, results, wanted);
    exit_code code = code_of(results);
    try {
        if (code == exit_code::scene_failed && command.policy == on_error::rollback)
            roll_back(*opened, states, results);
        if (wants_lines) {
            const run_record record{command, to, results, warnings, before, lines_of(*opened, wanted)};
            if (!command.report.empty()) write_output(command.report, report_text(record));
            if (!command.map.empty()) write_output(command.map, section_map(record));
        }
        opened->close();
    } catch (const std::exception& e) {  // what became of the scenes is told all the same
        std::cerr << "oxhost: " << e.what() << '\n';
        if (code == exit_code::done) code = exit_code::nothing_done;
    }
    tell(command, results);
    return code;
} catch (const project_error& e) {
    throw failure(exit_code::nothing_done, e.what());
} catch (const shell::bundle_error& e) {
    throw failure(exit_code::unreadable, e.what());
}

}  // namespace oxhost::app
