#pragma once
/// What the command line says of itself, in the user's language: its help, and what is wrong with words that
/// it does not understand.

#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
class FormatterBase;
class ParseError;
}  // namespace CLI

namespace oxhost::app {

/// Before options are declared, since their help is worded then: `--lang X` or `--lang=X` anywhere in the
/// words, else the environment's.
void settle_language(int argc, const char* const* argv);

/// For `--help` of the program and of every subcommand; taken over by subcommands that are added later.
std::shared_ptr<CLI::FormatterBase> help_formatter();

/// What the help says of an option: "--scene INDEX|CAPTION ..." and its sentence.
struct help_entry {
    std::string left;
    std::string description;
};
/// Of the words without a name, or of the options; those of no group are hidden.
std::vector<help_entry> help_entries(const CLI::App& app, bool positional);

/// The manual page of the program and all its commands, for man(1).
std::string manual_page(const CLI::App& app);
/// A script for bash that completes commands, options, their fixed values and file names.
std::string bash_completion(const CLI::App& app);

/// One line: what is wrong with the words, and the nearest name where one is misspelled. `app` is the
/// program, after it has parsed them.
std::string usage_line(CLI::App& app, const CLI::ParseError& error);

}  // namespace oxhost::app
