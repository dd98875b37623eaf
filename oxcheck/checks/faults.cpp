// Every call of the host that can refuse does so once, one after the other.

#include <set>

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/words.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

using host_double::host;
using host_double::narrow;

/// What one run with a refusing host came to.
struct faulty_run {
    std::size_t number;  ///< of the call that was refused, from 1; 0 for none
    const play& acted;
    const session& started;
    std::string name() const {
        return "call " + std::to_string(number) + " (" + host().refused + ") refused";
    }
};

/// Runs the utility with call number `refuse` refused, and calls `look` after it. Answers how many calls
/// there were that could have been.
template <class Look>
std::size_t run_with_fault(session& started, std::size_t refuse, Look look) {
    script::set_stage();
    host().refuse = refuse;
    play acted(started);
    acted.run();
    const std::size_t calls = host().asked;
    look(faulty_run{refuse, acted, started});
    script::clear_stage();
    if (late_calls().empty()) forget_lent_objects();
    return calls;
}

/// Runs the utility once with every call granted, then once for each of the calls with that one refused, and
/// calls `look` after each of these runs. Only what a refusal brings about is a matter of these checks.
template <class Look>
void with_each_fault(const subject& given, Look look) {
    session started(given.bundle);
    std::size_t calls = 0;
    try {
        calls = run_with_fault(started, 0, look);
    } catch (const failure& found) {
        throw no_occasion(std::string("it is so without a refusal: ") + found.what());
    }
    if (calls == 0) throw no_occasion("the utility makes no call that the host can refuse");
    for (std::size_t k = 1; k <= calls; ++k) {
        note("call " + std::to_string(k) + " of " + std::to_string(calls) + " is refused");
        run_with_fault(started, k, look);
    }
}

/// The utility is none the worse for a refusal: the next run does as the first one did.
void are_survived(const subject& given) {
    session started(given.bundle);
    std::string first, state, name;
    const auto remember = [&](const faulty_run& run) {
        if (run.number > 0)
            name = run.name();
        else
            state = script::describe_host();
    };
    const std::size_t calls = run_with_fault(started, 0, remember);
    if (calls == 0) throw no_occasion("the utility makes no call that the host can refuse");
    first = state;
    run_with_fault(started, 0, remember);
    if (state != first) throw no_occasion("runs do not repeat themselves, without a refusal already");
    for (std::size_t k = 1; k <= calls; ++k) {
        note("call " + std::to_string(k) + " of " + std::to_string(calls) + " is refused");
        run_with_fault(started, k, remember);
        run_with_fault(started, 0, remember);
        require(state == first, name + ", the next run as the first:\n" + first, state);
    }
}

void leave_nothing_behind(const subject& given) {
    with_each_fault(given, [](const faulty_run& run) {
        require(script::objects_left().empty(), run.name() + ", nothing left", script::objects_left());
    });
}

void leave_no_bracket_open(const subject& given) {
    with_each_fault(given, [](const faulty_run& run) {
        const std::string fault = script::bracket_fault();
        require(fault.empty(), run.name() + ", brackets as ever", fault);
    });
}

/// A scene is as it was, or carries another projection. A line never moves without its projection.
void leave_scenes_whole(const subject& given) {
    with_each_fault(given, [](const faulty_run& run) {
        const auto after = std::move(host().scenes);
        script::set_stage();
        for (std::size_t i = 0; i < after.size(); ++i)
            require(after[i]->pv == host().scenes[i]->pv || after[i]->pj4 != host().scenes[i]->pj4,
                    run.name() + ", " + narrow(after[i]->caption) + " keeps its line with its projection",
                    "a moved line in the old projection");
    });
}

/// What the run must say. Only the run over the scenes reports its failures; a dialog that cannot do its work
/// stays silent, and progress is a luxury.
said expected_words(const play& acted) {
    static const std::set<std::string> stopping{"profile data", "scene", "rpj", "pv", "init", "apply"};
    if (stopping.contains(host().refused)) {
        if (acted.refused_in() == phase::before) return {{}, {bad_settings}};
        if (acted.refused_in() == phase::within) return {{}, {reprojection_error}};
    }
    return {{reprojection_complete}, {}};
}

void are_reported(const subject& given) {
    with_each_fault(given, [](const faulty_run& run) {
        if (run.number == 0 && !host().live.contains("bracket"))
            throw no_occasion("the utility changes no scene");
        const said expected = expected_words(run.acted).as_known_in(run.started);
        const said came = heard().as_known_in(run.started);
        require(came == expected, run.name() + ", " + describe(expected), describe(came));
    });
}

constexpr check checks[] = {
    {"faults.survived", "each refusal of the host is survived, and the next run does its work", are_survived},
    {"faults.objects", "nothing that was made in the host stays after a refusal", leave_nothing_behind},
    {"faults.brackets", "update brackets are closed after a refusal", leave_no_bracket_open},
    {"faults.scenes", "a refusal leaves no scene half changed", leave_scenes_whole},
    {"faults.messages", "refusals are reported as the contract says", are_reported},
};

}  // namespace

std::span<const check> fault_checks() { return checks; }

}  // namespace oxcheck
