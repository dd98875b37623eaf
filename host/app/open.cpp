#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <system_error>

#include "app/command.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

constexpr auto window_program = "oxhost-window";

/// The window takes this process over, so that whoever started it waits for the window. Returns only when
/// that fails.
exit_code open_window(const fs::path& given) {
    const fs::path window = fs::read_symlink("/proc/self/exe").parent_path() / window_program;
    std::error_code ignored;
    if (!fs::exists(window, ignored))
        throw failure(
            exit_code::unreadable,
            window.string() + words(": окна нет: программа собрана без него",
                                    ": there is no window: this build of the program does without it"));
    // Absolute: a name that begins with a dash is no option of the window.
    const fs::path project = given.empty() ? given : fs::absolute(given);
    if (!project.empty() && !fs::exists(project, ignored))
        throw failure(exit_code::unreadable, given.string() + words(": нет такого файла", ": no such file"));
    const char* const arguments[] = {window_program, project.empty() ? nullptr : project.c_str(), nullptr};
    execv(window.c_str(), const_cast<char* const*>(arguments));
    throw failure(exit_code::unreadable, window.string() + ": " + std::generic_category().message(errno));
}

}  // namespace

void add_open(CLI::App& app, action& chosen) {
    auto project = std::make_shared<fs::path>();
    CLI::App* command =
        app.add_subcommand("open", words("Открыть окно программы, с проектом или без него",
                                         "Open the program's window, with a project or without one"));
    command->add_option("project", *project, words("Проект", "The project"))->type_name("PROJECT.gpkg");
    command->callback([project, &chosen] { chosen = [project] { return open_window(*project); }; });
}

}  // namespace oxhost::app
