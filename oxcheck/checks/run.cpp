// Running the utility in a host that works.

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
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
    {"run.brackets", "scenes change within their update brackets", closes_its_brackets},
    {"run.objects", "every object that is made in the host is given back", gives_everything_back},
    {"run.repeats", "a run repeated on the same input leaves the same host", repeats_itself},
    {"run.memory", "runs do not grow the heap", grows_no_memory},
};

}  // namespace

std::span<const check> run_checks() { return checks; }

}  // namespace oxcheck
