#include "run/outputs.h"

#include "base/files.h"
#include "base/language.h"
#include "project/recognise.h"
#include "run/request.h"

namespace oxhost::run {

void check_output(const std::filesystem::path& file, bool overwrite) {
    const auto refuse = [&](std::string_view russian, std::string_view english) {
        throw failure(trouble::refused, file.string() + ": " + words(russian, english));
    };
    if (is_project(file))
        refuse("это проект; проекты не заменяются", "is a project, and a project is never replaced");
    check_writable(file);
    if (is_stream(file) || overwrite) return;
    if (std::filesystem::exists(std::filesystem::symlink_status(file)))
        refuse("уже существует; заменить — с --overwrite", "exists already; --overwrite replaces it");
}

}  // namespace oxhost::run
