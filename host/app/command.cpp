#include "app/command.h"

#include <CLI/CLI.hpp>

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

constexpr auto default_bundle = "oxk_scn2d_prf_reproj.so";

bool can_be_read(const fs::path& file) {
    try {
        project::open(file, open_mode::read_only);
        return true;
    } catch (const project_error&) {
        return false;
    }
}

}  // namespace

void add_language(CLI::App& subcommand) {
    subcommand
        .add_option_function<std::string>(
            "--lang", [](const std::string& code) { choose_language(parse_language(code)); },
            "Language of texts and messages: ru or en (default: the locale's)")
        ->check(CLI::IsMember({"ru", "en"}));
}

void add_bundle(CLI::App& subcommand, fs::path& into) {
    into = fs::read_symlink("/proc/self/exe").parent_path() / default_bundle;
    subcommand
        .add_option("--bundle", into,
                    "The plug-in (default: " + std::string(default_bundle) + " beside this program)")
        ->type_name("FILE");
}

std::unique_ptr<project> open_project(const fs::path& file, open_mode mode) try {
    return project::open(file, mode);
} catch (const project_error& e) {
    const bool only_writing_fails = mode == open_mode::read_write && can_be_read(file);
    throw failure(only_writing_fails ? exit_code::nothing_done : exit_code::unreadable, e.what());
}

std::string name_of(const scene& of) {
    return "scene " + std::to_string(of.index) + " \"" + of.caption + '"';
}

}  // namespace oxhost::app
