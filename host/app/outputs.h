#pragma once
/// Files that commands write: nothing that exists is replaced unasked, a project never.

#include <filesystem>

namespace CLI {
class App;
}

namespace oxhost::app {

/// `--overwrite`.
void add_overwrite(CLI::App& subcommand, bool& result);

/// Before any work whose result the file takes. Ends the command where the file cannot be written, exists and
/// is not to be overwritten, or is a project, also behind a link, or a project's log. What is written into a
/// stream replaces nothing.
void check_output(const std::filesystem::path& file, bool overwrite);

}  // namespace oxhost::app
