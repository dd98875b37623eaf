#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "run/import_run.h"

namespace oxhost::app {

namespace {

struct import_command {
    std::filesystem::path project;
    run::import_order order;
    bool quiet = false;
};

exit_code import(const import_command& command) {
    for (const std::string& each : run::import_into(command.project, command.order))
        if (!command.quiet) std::cout << each << '\n';
    return exit_code::done;
}

std::string text(std::string_view russian, std::string_view english) { return words(russian, english); }

}  // namespace

void add_import(CLI::App& app, action& chosen) {
    auto options = std::make_shared<import_command>();
    CLI::App* command = app.add_subcommand(
        "import",
        text("Добавить линии файлов GeoJSON, GeoPackage, Shapefile, ..., таблиц точек как сцены",
             "Add lines of GeoJSON, GeoPackage, Shapefile, ... files and tables of points as scenes"));
    command
        ->add_option("project", options->project,
                     text("Проект; создаётся, если его нет", "The project; made when it is not there"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command->add_option("sources", options->order.sources, text("Файлы с линиями", "Files with lines"))
        ->type_name("SOURCE")
        ->required();
    command
        ->add_option("--proj4", options->order.target,
                     text("Проекция всех линий вместо указанной в файлах: ",
                          "Projection of all lines, in place of what the sources say: ") +
                         std::string(target_help))
        ->type_name("TEXT");
    command->add_flag("--not-profile", options->order.not_profile,
                      text("Сцены не являются разрезами", "The scenes are no profiles"));
    command
        ->add_option("--layer", options->order.layer, text("Читать только этот слой", "Read this layer only"))
        ->type_name("NAME");
    const auto add_column = [&](const char* name, std::string& column, const std::string& help) {
        command->add_option(name, column, help)->type_name("FIELD");
    };
    add_column(
        "--line", options->order.points.line,
        text("Таблица точек: поле линии, одна сцена на значение; --line, --x, ... ищутся и сами",
             "Table of points: field of the line, a scene per value; --line, --x, ... are also found by "
             "their usual names"));
    add_column("--order", options->order.points.order,
               text("Таблица точек: поле порядка вдоль линии",
                    "Table of points: field of the order along the line"));
    add_column(
        "--x", options->order.points.x,
        text("Таблица точек: восточная координата или долгота", "Table of points: easting or longitude"));
    add_column(
        "--y", options->order.points.y,
        text("Таблица точек: северная координата или широта", "Table of points: northing or latitude"));
    add_column("--z", options->order.points.z, text("Таблица точек: высота", "Table of points: height"));
    command->add_flag("--quiet", options->quiet,
                      text("Сообщать только об ошибках", "Say nothing but errors"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return import(*options); }; });
}

}  // namespace oxhost::app
