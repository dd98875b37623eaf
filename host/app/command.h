#pragma once
/// What the subcommands of oxhost share.

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include "base/language.h"
#include "session/console_messages.h"

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

/// The code for an exception that a command does not judge itself; called while that is handled.
exit_code code_of_current_exception();

/// What a parsed command line comes to.
using action = std::function<exit_code()>;

/// Each adds its subcommand; the one that the user names sets `chosen`.
void add_import(CLI::App& app, action& chosen);
void add_list(CLI::App& app, action& chosen);
void add_open(CLI::App& app, action& chosen);
void add_reproject(CLI::App& app, action& chosen);
void add_export(CLI::App& app, action& chosen);
void add_describe(CLI::App& app, action& chosen);
void add_project(CLI::App& app, action& chosen);
void add_favourites(CLI::App& app, action& chosen);
void add_guess(CLI::App& app, action& chosen);
void add_catalogue(CLI::App& app, action& chosen);
void add_undo(CLI::App& app, action& chosen);
void add_utilities(CLI::App& app, action& chosen);

/// What every TARGET option says in the help.
inline constexpr bilingual target_help{
    "EPSG:n или просто n, текст proj4, файл .pj4 или .prj либо none (без проекции)",
    "EPSG:n or n alone, a proj4 text, a .pj4 or .prj file, or none"};

// Options of several commands. `result` outlives the parsing.
/// `--verbose`, of the program and of each subcommand: exceptions that end at a border are told.
void add_verbose(CLI::App& app);
/// `--lang ru|en`, of the program and of each subcommand, `--verbose` along with it.
void add_language(CLI::App& subcommand);
/// `--yes` and `--no`, of which one may be given.
void add_answers(CLI::App& subcommand, console_options& result);
/// `--bundle FILE`, the plug-in, by default beside the program.
void add_bundle(CLI::App& subcommand, std::filesystem::path& result);

}  // namespace oxhost::app
