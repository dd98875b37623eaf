#pragma once
/// The option of commands that write files.

namespace CLI {
class App;
}

namespace oxhost::app {

/// `--overwrite`.
void add_overwrite(CLI::App& subcommand, bool& result);

}  // namespace oxhost::app
