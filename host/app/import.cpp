#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "base/files.h"
#include "base/language.h"
#include "exchange/exchange.h"
#include "geodesy/crs_import.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

struct import_command {
    fs::path project;
    std::vector<fs::path> sources;
    std::optional<std::string> proj4;
    bool not_profile = false;
    bool quiet = false;
};

std::vector<new_scene> read_sources(const import_command& command) {
    import_options how;
    if (command.proj4) how.proj4 = run::read_target(*command.proj4).proj4;
    how.not_profile = command.not_profile;
    how.crs_text = [](std::string_view code) { return import_crs(code).value_or(""); };
    std::vector<new_scene> scenes;
    for (const fs::path& source : command.sources) {
        const auto counts = load_exchange().import_lines(
            source, how, [&](new_scene&& scene) { scenes.push_back(std::move(scene)); });
        if (command.quiet) continue;
        std::cout << source.string() << ": " << counts.scenes << in_language(" сцен", " scenes");
        if (counts.skipped)
            std::cout << ", " << counts.skipped << in_language(" пропущено: не линии", " skipped: no lines");
        std::cout << '\n';
    }
    return scenes;
}

exit_code import(const import_command& command) try {
    std::error_code ignored;
    const bool fresh = !fs::exists(command.project, ignored);
    if (fresh) check_writable(command.project);
    auto opened = fresh ? nullptr : run::open_project(command.project, open_mode::read_write);
    const auto scenes = read_sources(command);
    if (scenes.empty())
        throw failure(exit_code::nothing_done, command.sources.front().string() + ": no lines");
    try {
        if (fresh) opened = project::create(command.project);
        try {
            opened->append(scenes);
        } catch (...) {
            if (fresh) opened->discard();
            throw;
        }
        opened->close();
    } catch (const project_error& e) {
        throw failure(exit_code::nothing_done, e.what());
    }
    return exit_code::done;
} catch (const exchange_error& e) {
    throw failure(exit_code::unreadable, e.what());
}

}  // namespace

void add_import(CLI::App& app, action& chosen) {
    auto options = std::make_shared<import_command>();
    CLI::App* command =
        app.add_subcommand("import", "Add lines of GeoJSON, GeoPackage, Shapefile, ... files as scenes");
    command->add_option("project", options->project, "The project; made when it is not there")
        ->type_name("PROJECT.gpkg")
        ->required();
    command->add_option("sources", options->sources, "Files with lines")->type_name("SOURCE")->required();
    command
        ->add_option("--proj4", options->proj4,
                     "Projection of all lines, in place of what the sources say: " + std::string(target_help))
        ->type_name("TEXT");
    command->add_flag("--not-profile", options->not_profile, "The scenes are no profiles");
    command->add_flag("--quiet", options->quiet, "Say nothing but errors");
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return import(*options); }; });
}

}  // namespace oxhost::app
