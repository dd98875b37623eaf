#include "oxcheck/child.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

#include "border/fault.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/system/system.h"

namespace oxcheck {

namespace fs = std::filesystem;

namespace {

// Files of a child's folder. The working folder in it is empty when the check begins.
constexpr const char* work = "work";
constexpr const char* answer = "answer";
constexpr const char* output = "output";
constexpr const char* notes = "notes";

std::string& current_note() {
    static std::string text;
    return text;
}
fs::path& note_file() {
    static fs::path file;
    return file;
}

class temporary_folder {
public:
    temporary_folder() {
        std::random_device random;
        do path_ = fs::temp_directory_path() / ("oxcheck" + std::to_string(random()));
        while (!fs::create_directory(path_));
    }
    ~temporary_folder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    temporary_folder(const temporary_folder&) = delete;
    temporary_folder& operator=(const temporary_folder&) = delete;
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

std::string read(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Result, expected and got, each ended by a zero byte; cut short when the writer died.
void write_answer(const fs::path& file, const outcome& found) {
    std::ofstream out(file, std::ios::binary);
    out << static_cast<int>(found.result) << '\0' << found.expected << '\0' << found.got << '\0';
}

bool read_answer(const fs::path& file, outcome& found) {
    const std::string text = read(file);
    if (std::ranges::count(text, '\0') != 3 || text[0] < '0' || text[0] > '2') return false;
    found.result = static_cast<verdict>(text[0] - '0');
    found.expected = text.c_str() + 2;
    found.got = text.c_str() + 3 + found.expected.size();
    return true;
}

outcome verdict_of(const check& what, const subject& given) {
    try {
        what.run(given);
        return {};
    } catch (const no_occasion& reason) {
        return {verdict::not_applicable, {}, reason.what()};
    } catch (const failure& found) {
        return {verdict::failed, found.expected, found.what()};
    } catch (...) {
        return {verdict::failed, "no exception leaves an entry", "an exception, " + last_note()};
    }
}

/// What the check finds, or what the bundle did meanwhile that no bundle may do.
outcome judge(const check& what, const subject& given) {
    ox::on_border_fault = [](const ox::border_fault& fault) {
        host_double::host().border_faults.push_back(std::string("the checker's own ") + fault.place +
                                                    ", slot " + std::to_string(fault.slot) + ": " +
                                                    fault.what);
    };
    outcome found = verdict_of(what, given);
    const auto complaints = script::complaints();
    if (found.result == verdict::failed || complaints.empty()) return found;
    return {verdict::failed, "no null where none belongs, and no exception at the border",
            complaints.front()};
}

std::string last_words(const fs::path& folder) {
    const std::string doing = read(folder / notes);
    std::string said = read(folder / output);
    if (said.size() > 2000) said.erase(0, said.size() - 2000);
    return (doing.empty() ? "" : ", " + doing) + (said.empty() ? "" : "; it printed: " + said);
}

struct life {
    bool well_ended;
    std::string end;
};

/// Follows a child to its end. It may use the processor for `limit`, or not at all in as many milliseconds of
/// watching it: more is a hang, however busy the machine is.
life watch(system::child& process, std::chrono::milliseconds limit) {
    constexpr std::chrono::milliseconds shortest(2), longest(16);
    auto patience = shortest, idle = 0 * shortest;
    auto used = process.processor_time();
    for (;;) {
        if (const auto end = process.wait(patience)) {
            if (end->how == system::ending::kind::crashed)
                return {false, "a crash (" + end->description + ")"};
            return {end->code == 0, "the process ended by itself with code " + std::to_string(end->code)};
        }
        const auto before = std::exchange(used, std::max(used, process.processor_time()));
        const bool works = used > before;
        idle = works ? 0 * idle : idle + patience;
        patience = works ? shortest : std::min(longest, 2 * patience);
        const std::string hang = "a hang (no end after " + std::to_string(limit.count()) + " ms ";
        if (used >= limit) return {false, hang + "of processor time)"};
        if (idle >= limit) return {false, hang + "without any work)"};
    }
}

/// What did not start has done nothing, so it is tried again: where addresses are random, Wine now and then
/// loses a process before its first instruction.
life live(const std::vector<fs::path>& arguments, const fs::path& folder, std::chrono::milliseconds limit) {
    for (int tries = 3;;) try {
            system::child process(arguments, folder / work, folder / output);
            return watch(process, limit);
        } catch (const std::runtime_error& reason) {
            if (--tries == 0) return {false, std::string("no process (") + reason.what() + ")"};
        }
}

}  // namespace

void note(const std::string& doing) {
    current_note() = doing;
    if (!note_file().empty()) std::ofstream(note_file(), std::ios::binary) << doing;
}

const std::string& last_note() { return current_note(); }

outcome run_in_child(const check& what, const fs::path& bundle, std::chrono::milliseconds limit) {
    const temporary_folder folder;
    fs::create_directory(folder.path() / work);
    const life lived = live({child_option, what.name, bundle, folder.path()}, folder.path(), limit);
    outcome found;
    if (lived.well_ended && read_answer(folder.path() / answer, found)) return found;
    return {verdict::failed, what.claim, lived.end + last_words(folder.path())};
}

int run_as_child(const std::string& name, const fs::path& bundle, const fs::path& folder) {
    system::crash_quietly();
    system::load_host_modules();
    note_file() = folder / notes;
    for (const check& each : all_checks())
        if (each.name == name) {
            write_answer(folder / answer, judge(each, {bundle, folder / output}));
            // Not through the exit handlers: after a failed check the bundle may still be loaded.
            std::_Exit(0);
        }
    return 1;
}

}  // namespace oxcheck
