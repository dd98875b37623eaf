#pragma once
/// What the command line says of itself, in the user's language: its help, and what is wrong with words that
/// it does not understand.

#include <memory>
#include <string>

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

/// One line: what is wrong with the words, and the nearest name where one is misspelled. `app` is the
/// program, after it has parsed them.
std::string usage_line(CLI::App& app, const CLI::ParseError& error);

}  // namespace oxhost::app
