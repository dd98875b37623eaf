#include "oxcheck/child.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

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

outcome judge(const check& what, const subject& given) {
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

std::string last_words(const fs::path& folder) {
    const std::string doing = read(folder / notes);
    std::string said = read(folder / output);
    if (said.size() > 2000) said.erase(0, said.size() - 2000);
    return (doing.empty() ? "" : ", " + doing) + (said.empty() ? "" : "; it printed: " + said);
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
    using ended = system::ending::kind;
    system::ending end;
    // What did not start has done nothing, so it may be tried again: under address randomisation Wine now
    // and then loses a process before its first instruction.
    for (int tries = 3; tries > 0 && end.how == ended::not_started; --tries)
        end = system::run_self({child_option, what.name, bundle, folder.path()}, folder.path() / work,
                               folder.path() / output, limit);
    outcome found;
    if (end.how == ended::exited && end.code == 0 && read_answer(folder.path() / answer, found)) return found;
    found = {verdict::failed, what.claim, {}};
    switch (end.how) {
        case ended::exited:
            found.got = "the process ended by itself with code " + std::to_string(end.code);
            break;
        case ended::crashed:
            found.got = "a crash (" + end.description + ")";
            break;
        case ended::timed_out:
            found.got = "a hang (" + end.description + ")";
            break;
        case ended::not_started:
            found.got = "no process (" + end.description + ")";
            break;
    }
    found.got += last_words(folder.path());
    return found;
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
