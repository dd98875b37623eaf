#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "base/files.h"
#include "base/language.h"
#include "exchange/exchange.h"
#include "geodesy/transformation.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

struct export_options {
    std::filesystem::path project;
    std::filesystem::path out;
    std::optional<std::string> to;
    bool quiet = false;
};

/// Brings a scene into the target, or ends the command with the scene's name.
void transform(new_scene& copy, const scene& original, const run::target& goal) {
    const auto fail = [&](const std::string& reason) {
        throw failure(exit_code::scene_failed,
                      original.owner->path().string() + ": " + name_of(original) + ": " + reason);
    };
    if (!copy.line || copy.line->xy.empty()) return;
    if (copy.proj4.empty()) fail("has no projection to transform from");
    try {
        const auto way = transformation::between(copy.proj4, goal.proj4);
        if (way->is_needed())
            if (const auto failed = way->apply(copy.line->xy))
                fail("vertex " + std::to_string(failed->vertex) + ": " + failed->reason);
    } catch (const std::invalid_argument& refused) {
        fail(refused.what());
    }
    copy.proj4 = goal.proj4;
}

exit_code export_project(const export_options& options) try {
    std::optional<run::target> goal;
    if (options.to) goal = run::read_target(*options.to);
    if (goal && goal->none())
        throw failure(exit_code::nothing_done, "export needs a projection to transform to, not \"none\"");
    const auto opened = run::open_project(options.project, open_mode::read_only);
    check_writable(options.out);
    std::size_t next = 0;
    const auto next_scene = [&]() -> std::optional<new_scene> {
        const scene* original = opened->at(next++);
        if (!original) return std::nullopt;
        new_scene copy{original->caption, original->profile, original->proj4, std::nullopt};
        if (original->line) copy.line = opened->read_line(*original);
        if (goal) transform(copy, *original, *goal);
        return copy;
    };
    load_exchange().export_lines(options.out, options.project, goal ? goal->proj4 : "", next_scene);
    if (!options.quiet)
        std::cout << options.out.string() << ": " << opened->size() << in_language(" сцен", " scenes")
                  << '\n';
    return exit_code::done;
} catch (const exchange_error& e) {
    throw failure(exit_code::nothing_done, e.what());
} catch (const project_error& e) {
    throw failure(exit_code::unreadable, e.what());
}

}  // namespace

void add_export(CLI::App& app, action& chosen) {
    auto options = std::make_shared<export_options>();
    CLI::App* command = app.add_subcommand("export", "Write the scenes' lines to a file of another format");
    command->add_option("project", options->project, "The project")->type_name("PROJECT.gpkg")->required();
    command->add_option("out", options->out, "The file to write; its extension is the format")
        ->type_name("OUT.(geojson|gpkg|shp)")
        ->required();
    command->add_option("--to", options->to, "Transform all lines: EPSG:n, a proj4 text, a .pj4 or .prj file")
        ->type_name("TARGET");
    command->add_flag("--quiet", options->quiet, "Say nothing but errors");
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return export_project(*options); }; });
}

}  // namespace oxhost::app
