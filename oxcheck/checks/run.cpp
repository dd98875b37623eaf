// Running the utility in a host that works.

#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/words.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

using host_double::host;

void does_nothing_without_dialogs(const subject& given) {
    script::set_stage();
    const std::string before = script::describe_host();
    session started(given.bundle, {.attach_dialog_hosts = false});
    started.run();
    require(script::describe_host() == before, "an untouched host", script::describe_host());
    require(script::objects_left().empty(), "no object left in the host", script::objects_left());
}

/// Of the utility's operations only one shows its dialog, and all of the others leave the host alone.
void shows_its_dialog(const subject& given) {
    using ox::utility_impl;
    anything neighbour;
    script::set_stage();
    session started(given.bundle);
    const custom_pointer utility = started.utility();
    const std::string before = script::describe_host();
    ox::call<&utility_impl::visit_caption>(utility, neighbour.pointer());
    ox::call<&utility_impl::visit_icon>(utility, neighbour.pointer());
    ox::call<&utility_impl::attach>(utility, neighbour.pointer());
    ox::call<&utility_impl::host_request>(utility);
    ox::call<&utility_impl::reserved>(utility);
    ox::call<&utility_impl::set_host_data>(utility, neighbour.pointer());
    require_equal(started.dialogs.shown, 0, "dialogs shown before the utility runs:");
    require(script::describe_host() == before, "an untouched host before it runs", script::describe_host());
    if (!started.has_dialog_of_utility())
        throw no_occasion("the bundle has no place for its utility's dialog");
    started.run();
    require_equal(started.dialogs.shown, 1, "dialogs shown by running it and closing what it shows:");
}

/// What a run comes to on a stage that `prepare` changes.
template <class Prepare>
std::string host_after(const subject& given, Prepare prepare) {
    script::set_stage();
    host().scenes.clear();
    prepare();
    session started(given.bundle);
    play(started).run();
    return script::describe_host();
}

void has_no_scenes_without_project(const subject& given) {
    const std::string empty = host_after(given, [] {});
    const std::string closed = host_after(given, [] { host().project_open = false; });
    require(closed == empty, "without a project the same as without scenes:\n" + empty, closed);
    const std::string bare = host_after(given, [] { host().project_has_scenes = false; });
    require(bare == empty, "without a collection of scenes the same as without scenes:\n" + empty, bare);
}

void fails_without_line(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    play(started).run();
    if (!host().live.contains("bracket")) throw no_occasion("the utility changes no scene");
    const said done = said{{reprojection_complete}, {}}.as_known_in(started);
    if (heard().as_known_in(started) != done) throw no_occasion("the utility does not report success");

    script::set_stage();
    for (const auto& scene : host().scenes) scene->has_line = false;
    play(started).run();
    const said expected = said{{}, {reprojection_error}}.as_known_in(started);
    const said came = heard().as_known_in(started);
    require(came == expected, "profiles without a line, " + describe(expected), describe(came));
    const auto after = std::move(host().scenes);
    script::set_stage();
    for (std::size_t i = 0; i < after.size(); ++i)
        require(host().scenes[i]->pj4.empty() || host().scenes[i]->pj4 == after[i]->pj4,
                host_double::narrow(after[i]->caption) + " without a line keeps its projection",
                host_double::narrow(after[i]->pj4));
}

void closes_its_brackets(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    play(started).run();
    if (!host().live.contains("bracket")) throw no_occasion("the utility changes no scene");
    const std::string fault = script::bracket_fault();
    require(fault.empty(), "each change within the bracket of its scene", fault);
}

void gives_everything_back(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    for (int i = 0; i < 2; ++i) {
        play(started).run();
        require(script::objects_left().empty(), "no object left in the host", script::objects_left());
    }
}

void repeats_itself(const subject& given) {
    std::string first;
    session started(given.bundle);
    for (int i = 0; i < 3; ++i) {
        script::set_stage();
        play(started).run();
        const std::string state = script::describe_host();
        if (i == 0) first = state;
        require(state == first, "the same host as after the first run:\n" + first, state);
    }
}

void grows_no_memory(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    constexpr int interval = 8;
    std::size_t heap[3] = {};
    for (int i = 0; i < 3 * interval; ++i) {
        script::set_stage();
        play(started).run();
        script::clear_stage();
        if (late_calls().empty()) forget_lent_objects();
        if (i % interval == interval - 1) heap[i / interval] = system::count_holdings().heap;
    }
    require(heap[2] <= heap[1] || heap[1] <= heap[0], "no growth of the heap from run to run",
            std::to_string(heap[2] - heap[1]) + " bytes in " + std::to_string(interval) + " runs");
}

constexpr check checks[] = {
    {"run.undisplayed", "without a dialog host the utility returns and changes nothing",
     does_nothing_without_dialogs},
    {"run.dialog", "running the utility shows its dialog, and nothing else does", shows_its_dialog},
    {"run.without_project", "a host without a project has no scenes", has_no_scenes_without_project},
    {"run.without_line", "a profile without a line is a scene that failed", fails_without_line},
    {"run.brackets", "scenes change within their update brackets", closes_its_brackets},
    {"run.objects", "every object that is made in the host is given back", gives_everything_back},
    {"run.repeats", "a run repeated on the same input leaves the same host", repeats_itself},
    {"run.memory", "runs do not grow the heap", grows_no_memory},
};

}  // namespace

std::span<const check> run_checks() { return checks; }

}  // namespace oxcheck
