#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "app/outputs.h"
#include "base/files.h"
#include "base/language.h"
#include "exchange/exchange.h"
#include "run/export_run.h"

namespace oxhost::app {

namespace {

struct export_options {
    std::filesystem::path project;
    run::export_wish wish;
    bool all = false;
    std::vector<std::string> scenes;  ///< none for all
    bool quiet = false;
};

exit_code export_project(const export_options& options) try {
    const auto opened = run::open_project(options.project, open_mode::read_only);
    auto scenes = options.scenes.empty() ? run::all_scenes(*opened)
                                         : run::select_scenes(*opened, options.scenes, false);
    const auto told = run::export_scenes(*opened, std::move(scenes), options.wish);
    if (options.quiet) return exit_code::done;
    const std::string out = options.wish.out.string() + ": ";
    for (const std::string& each : told.warnings)
        std::cerr << words("предупреждение: ", "warning: ") << out << each << '\n';
    (is_stream(options.wish.out) ? std::cerr : std::cout) << out << told.summary << '\n';
    return exit_code::done;
} catch (const exchange_error& e) {
    throw failure(exit_code::nothing_done, e.what());
} catch (const project_error& e) {
    throw failure(exit_code::unreadable, e.what());
}

}  // namespace

void add_export(CLI::App& app, action& chosen) {
    auto options = std::make_shared<export_options>();
    CLI::App* command = app.add_subcommand(
        "export",
        words("Записать линии сцен с их атрибутами, высотами и мерами в файл другого формата",
              "Write the scenes' lines with attributes, heights and measures to a file of another format"));
    command->add_option("project", options->project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command
        ->add_option(
            "out", options->wish.out,
            words("Файл; его расширение — формат. GeoPackage: слой на каждую проекцию; Shapefile: одна "
                  "проекция; GeoJSON: долгота и широта WGS 84, если нет --to",
                  "The file to write; its extension is the format. GeoPackage: a layer for each "
                  "projection; Shapefile: one projection; GeoJSON: longitude and latitude on WGS 84 "
                  "unless --to is given"))
        ->type_name("OUT.(geojson|gpkg|shp)")
        ->required();
    command
        ->add_option("--to", options->wish.target,
                     words("Преобразовать все линии: EPSG:n, текст proj4, файл .pj4 или .prj",
                           "Transform all lines: EPSG:n, a proj4 text, a .pj4 or .prj file"))
        ->type_name("TARGET");
    auto* all = command->add_flag("--all", options->all,
                                  words("Все сцены (так и без указаний)", "Every scene (the default)"));
    command
        ->add_option("--scene", options->scenes,
                     words("Сцены по номеру или названию, не только разрезы",
                           "Scenes by number or caption, not profiles only"))
        ->type_name("INDEX|CAPTION")
        ->excludes(all);
    add_overwrite(*command, options->wish.overwrite);
    command->add_flag("--quiet", options->quiet,
                      words("Сообщать только об ошибках", "Say nothing but errors"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return export_project(*options); }; });
}

}  // namespace oxhost::app
