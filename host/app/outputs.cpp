#include "app/outputs.h"

#include <CLI/CLI.hpp>

#include "app/command.h"
#include "base/files.h"
#include "base/language.h"
#include "project/recognise.h"

namespace oxhost::app {

void add_overwrite(CLI::App& subcommand, bool& result) {
    subcommand.add_flag("--overwrite", result,
                        words("Заменять существующие файлы (проекты — никогда)",
                              "Replace files that exist (never a project)"));
}

void check_output(const std::filesystem::path& file, bool overwrite) {
    const auto refuse = [&](std::string_view russian, std::string_view english) {
        throw failure(exit_code::nothing_done, file.string() + ": " + words(russian, english));
    };
    if (is_project(file))
        refuse("это проект; проекты не заменяются", "is a project, and a project is never replaced");
    check_writable(file);
    if (is_stream(file) || overwrite) return;
    if (std::filesystem::exists(std::filesystem::symlink_status(file)))
        refuse("уже существует; заменить — с --overwrite", "exists already; --overwrite replaces it");
}

}  // namespace oxhost::app
