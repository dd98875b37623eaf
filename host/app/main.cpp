#include <CLI/CLI.hpp>
#include <clocale>
#include <iostream>

#include "app/command.h"
#include "app/help.h"
#include "base/language.h"
#include "exchange/exchange.h"
#include "geodesy/gis_crs.h"
#include "geodesy/proj_context.h"
#include "project/gis_systems.h"
#include "project/sqlite.h"
#include "session/border.h"

namespace {

using namespace oxhost;
using namespace oxhost::app;

constexpr bilingual closing_words{
    "Справка по команде: oxhost КОМАНДА --help. Код завершения: 0 выполнено, 1 ошибка в сцене, 2 нечего "
    "делать или "
    "неверные настройки, 3 ответ «нет», 64 неверная команда, 66 файл не читается, 70 внутренняя ошибка, 130 "
    "и 143 "
    "прервано сигналом.",
    "Help on a command: oxhost COMMAND --help. Exit code: 0 done, 1 a scene failed, 2 nothing to do or bad "
    "settings, "
    "3 answered no, 64 usage, 66 input unreadable, 70 internal error, 130 and 143 ended by a signal."};

int answer(exit_code code) { return static_cast<int>(code); }

/// What a project's texts are to other GIS programs.
std::optional<oxhost::gis_system> look_up(const std::string& proj4, const oxhost::extent& bounds) {
    const auto found = oxhost::crs_for_gis(proj4, bounds);
    if (!found) return {};
    return oxhost::gis_system{found->name, found->wkt, found->epsg};
}

void tell(const std::string& line) { std::cerr << line << '\n'; }

/// The program's, then those of what computes, stores and exchanges, one a line.
std::string versions() {
    const proj_versions proj = versions_of_proj();
    std::string gdal;
    try {
        gdal = load_exchange().version();
    } catch (const exchange_error& error) {
        gdal = error.what();
    }
    return "oxhost " OXHOST_VERSION "\nPROJ " + proj.library +
           (proj.database.empty() ? "" : " (" + proj.database + ')') + "\nGDAL " + gdal + "\nSQLite " +
           sqlite::version();
}

int run(int argc, char** argv) {
    settle_language(argc, argv);
    CLI::App app{words("Перепроецирование линий разрезов сцен профилей",
                       "Reprojects the section lines of 2D profile scenes"),
                 "oxhost"};
    app.formatter(help_formatter());
    app.set_help_flag("-h,--help", words("Эта справка", "This help"));
    app.set_version_flag(
        "--version", versions,
        words("Версии программы и её библиотек", "Versions of the program and its libraries"));
    app.footer(std::string(closing_words));
    app.require_subcommand(0, 1);
    // for those who install the program
    const CLI::Option* wants_page = app.add_flag("--manual-page")->group("");
    const CLI::Option* wants_completion = app.add_flag("--bash-completion")->group("");
    add_language(app);
    action chosen;
    for (const auto add : {add_open, add_import, add_list, add_reproject, add_export, add_describe,
                           add_project, add_favourites, add_guess, add_catalogue, add_undo, add_utilities})
        add(app, chosen);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& e) {
        if (e.get_exit_code() == answer(exit_code::done)) return app.exit(e);  // --help, --version
        std::cerr << "oxhost: " << usage_line(app, e) << '\n';
        return answer(exit_code::usage);
    }
    if (*wants_page || *wants_completion) {
        std::cout << (*wants_page ? manual_page(app) : bash_completion(app));
        return answer(exit_code::done);
    }
    if (chosen) return answer(chosen());
    std::cerr << "oxhost: "
              << in_language("нужна команда; список команд: oxhost --help",
                             "a command is needed; --help lists them")
              << '\n';
    return answer(exit_code::usage);
}

}  // namespace

int main(int argc, char** argv) {
    ox::on_border_fault = oxhost::tell_fault;  // that of the shell, which is part of this program
    oxhost::use_gis_directory({look_up, tell});
    // Characters and messages follow the locale; numbers never do.
    std::setlocale(LC_CTYPE, "");
    std::setlocale(LC_MESSAGES, "");
    try {
        return run(argc, argv);
    } catch (const std::exception& e) {
        std::cerr << "oxhost: " << e.what() << '\n';
        return answer(code_of_current_exception());
    }
}
