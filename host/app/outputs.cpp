#include "app/outputs.h"

#include <CLI/CLI.hpp>

#include "base/language.h"

namespace oxhost::app {

void add_overwrite(CLI::App& subcommand, bool& result) {
    subcommand.add_flag("--overwrite", result,
                        words("Заменять существующие файлы (проекты — никогда)",
                              "Replace files that exist (never a project)"));
}

}  // namespace oxhost::app
