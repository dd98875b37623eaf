// Loading and unloading: exports, time, silence, and what is left behind.

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "oxcheck/check.h"
#include "oxcheck/files/exports.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/play.h"
#include "testing/processor_time.h"

namespace oxcheck {

namespace {

namespace fs = std::filesystem;
using host_double::host;

void opens(const subject& given) {
    try {
        const system::library library(given.bundle);
        require(library.find(entry_name) != nullptr, std::string("the export ") + entry_name, "none");
    } catch (const failure&) {
        throw;
    } catch (const std::exception& reason) {
        throw failure("a library that can be loaded", reason.what());
    }
}

void exports_two_names(const subject& given) {
    std::vector<std::string> names = exports_of(given.bundle);
    std::ranges::sort(names);
    std::string listed;
    for (const std::string& name : names) listed += (listed.empty() ? "" : ", ") + name;
    const std::string expected = std::string(entry_name) + ", " + unload_guard_name;
    require(listed == expected, expected, listed.empty() ? "no exports" : listed);
}

/// What grew in both of two equal stretches of time: what grows in one of them only is the ways of a heap.
std::size_t steady_growth(const system::holdings (&at)[3], std::size_t system::holdings::*amount) {
    const auto grown = [&](int from, int to) {
        return at[to].*amount > at[from].*amount ? at[to].*amount - at[from].*amount : 0;
    };
    return std::min(grown(0, 1), grown(1, 2));
}

void unloads_without_trace(const subject& given) {
    constexpr int warm_up = 3;  // the loader and the C library keep what they will need again
    constexpr int times = 10;   // twice
    const auto once = [&given] {
        script::set_stage();
        {
            session started(given.bundle, {.with_localizer = true});
            if (started.has_utility()) play(started).run();
        }
        forget_lent_objects();
        script::clear_stage();
    };
    for (int i = 0; i < warm_up; ++i) once();
    system::holdings at[3];
    at[0] = system::count_holdings();
    for (int i = 1; i < 3; ++i) {
        for (int k = 0; k < times; ++k) once();
        at[i] = system::count_holdings();
    }
    require_equal(steady_growth(at, &system::holdings::handles), std::size_t{0},
                  "more handles after ten times:");
    const std::size_t heap = steady_growth(at, &system::holdings::heap);
    require(heap <= times * system::kept_by_runtime(), "no growth of the heap in ten times",
            std::to_string(heap) + " bytes");
    const std::size_t mapped = steady_growth(at, &system::holdings::mapped);
    require(mapped < times * std::size_t{65536}, "no growth of the address space in ten times",
            std::to_string(mapped) + " bytes");
}

void starts_afresh(const subject& given) {
    script::set_stage();
    session first(given.bundle, {.with_localizer = true});
    play(first).run();
    const bool localized = !first.localized.asked.empty();
    first.unload();
    require(!system::is_loaded(given.bundle), "the library leaves the process when it is unloaded",
            "it stays mapped");
    first.localized.asked.clear();

    script::set_stage();
    session second(given.bundle, {.with_localizer = true});
    second.localized.mark = L"second ";
    for (const service& each : second.services())
        require(ox::call<&ox::referent_impl::owner>(each.referent()) == second.given.self(),
                "a service of the second session is owned by its context", "another owner");
    const std::wstring caption =
        read_text([&](custom_pointer v) { ox::call<&ox::utility_impl::visit_caption>(second.utility(), v); });
    play(second).run();
    require(first.localized.asked.empty(), "the first session's localizer is not asked any more", "it is");
    require(!localized || caption.starts_with(second.localized.mark), "a caption of the second localizer",
            host_double::narrow(caption));
}

void loads_quickly(const subject& given) {
    constexpr std::chrono::milliseconds limit(100);
    auto fastest = std::chrono::nanoseconds::max();  // of a few: the first one fetches pages from the disk
    for (int i = 0; i < 5; ++i) {
        const auto start = processor_time();
        const bundle loaded(given.bundle);
        loaded.enter(nullptr);
        fastest = std::min(fastest, processor_time() - start);
    }
    const auto taken = std::chrono::duration_cast<std::chrono::milliseconds>(fastest);
    require(taken < limit, "loaded in under 100 ms of processor time", std::to_string(taken.count()) + " ms");
}

void loads_silently(const subject& given) {
    script::clear_stage();
    const std::size_t windows = system::count_holdings().windows;
    const bundle loaded(given.bundle);
    loaded.enter(nullptr);
    std::fflush(nullptr);
    require_equal(system::count_holdings().windows, windows, "windows of the thread:");
    require(fs::is_empty(fs::current_path()), "no file in the working folder",
            fs::is_empty(fs::current_path())
                ? ""
                : fs::directory_iterator(fs::current_path())->path().filename().string());
    require_equal(fs::file_size(given.output), std::uintmax_t{0}, "bytes printed:");
    require_equal(host().messages.size() + host().errors.size() + host().questions.size(), std::size_t{0},
                  "messages to the user:");
    require(host().log.empty() && host().live.empty(), "no call of the host",
            host().log.empty() ? "objects made" : host().log.front());
}

constexpr check checks[] = {
    {"load.opens", "the library is loaded and has the bundle entry", opens},
    {"load.exports", "exactly the two names of the contract are exported", exports_two_names},
    {"load.unload", "twenty times loaded, run and unloaded, nothing grows", unloads_without_trace},
    {"load.second_session", "unloaded and loaded again, the bundle knows nothing of its first host",
     starts_afresh},
    {"load.time", "loading takes less than 100 ms of processor time", loads_quickly},
    {"load.silent", "loading shows no window, writes no file, says nothing", loads_silently},
};

}  // namespace

std::span<const check> load_checks() { return checks; }

}  // namespace oxcheck
