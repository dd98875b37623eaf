#pragma once
/// What the subcommands of oxhost share.

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "project/project.h"
#include "session/language.h"

namespace CLI {
class App;
}

namespace oxhost::app {

enum class exit_code {
    done = 0,
    scene_failed = 1,
    nothing_done = 2,  ///< nothing to do, or settings that do not work
    answered_no = 3,
    usage = 64,
    unreadable = 66,
    internal = 70,
};

/// Ends a command: one line for the error output, and the code.
struct failure : std::runtime_error {
    failure(exit_code ends_with, const std::string& line) : std::runtime_error(line), code(ends_with) {}
    exit_code code;
};

/// What a parsed command line comes to.
using action = std::function<exit_code()>;

/// Each adds its subcommand; the one that the user names sets `chosen`.
void add_import(CLI::App& app, action& chosen);
void add_list(CLI::App& app, action& chosen);
void add_reproject(CLI::App& app, action& chosen);
void add_export(CLI::App& app, action& chosen);
void add_describe(CLI::App& app, action& chosen);
void add_project(CLI::App& app, action& chosen);
void add_catalogue(CLI::App& app, action& chosen);

/// `--lang ru|en`; takes effect while the command line is read.
void add_language(CLI::App& subcommand);
/// `--bundle FILE`, the plug-in, by default beside the program. `into` outlives the parsing.
void add_bundle(CLI::App& subcommand, std::filesystem::path& into);

/// Opens a project. A file that cannot be read ends with `unreadable`, one that can only be read but is to
/// be changed with `nothing_done`.
std::unique_ptr<project> open_project(const std::filesystem::path& file, open_mode mode);

/// `scene 3 "caption"`.
std::string name_of(const scene& of);

}  // namespace oxhost::app
