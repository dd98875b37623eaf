#include <CLI/CLI.hpp>
#include <cmath>
#include <iostream>

#include "app/command.h"
#include "app/outputs.h"
#include "base/files.h"
#include "base/language.h"
#include "base/text.h"
#include "exchange/exchange.h"
#include "exchange/formats.h"
#include "geodesy/transformation.h"
#include "run/export_plan.h"

namespace oxhost::app {

namespace {

struct export_options {
    std::filesystem::path project;
    std::filesystem::path out;
    std::optional<std::string> to;
    bool all = false;
    std::vector<std::string> scenes;  ///< none for all
    bool overwrite = false;
    bool quiet = false;
};

/// Brings a scene into the target, or ends the command with the scene's name.
void transform(new_scene& copy, const scene& original, const std::string& target) {
    const auto fail = [&](const std::string& reason) {
        throw failure(exit_code::scene_failed,
                      original.owner->path().string() + ": " + name_of(original) + ": " + reason);
    };
    try {
        const auto way = transformation::between(copy.proj4, target);
        if (way->is_needed())
            if (const auto failed = way->apply(copy.line->xy))
                fail(words("вершина ", "vertex ") + std::to_string(failed->vertex) + ": " + failed->reason);
    } catch (const std::invalid_argument& refused) {
        fail(refused.what());
    }
    copy.proj4 = target;
}

/// Has a line go on beyond 180 degrees where it would jump to the other end of the world. Whether it did.
bool unwrap(polyline& line) {
    bool changed = false;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double turns = std::round((line[i].x - line[i - 1].x) / 360);
        line[i].x -= 360 * turns;
        changed |= turns != 0;
    }
    return changed;
}

/// Reads the scenes of a plan one after the other, in the coordinates that it wants.
class scene_source {
public:
    scene_source(project& opened, const run::export_plan& plan) : opened_(opened), plan_(plan) {}

    std::optional<layered_scene> next() {
        if (next_ == plan_.scenes.size()) return {};
        const scene& original = *plan_.scenes[next_];
        layered_scene made{
            plan_.layer_of[next_++],
            {original.caption, original.profile, original.proj4, {}, opened_.read_values(original)}};
        if (!original.line) return made;
        made.scene.line = opened_.read_line(original);
        const std::string& target = plan_.layers[made.layer].proj4;
        if (!plan_.transforms || target.empty() || original.line->vertices == 0) return made;
        transform(made.scene, original, target);
        if (plan_.unwraps) unwrapped_ += unwrap(made.scene.line->xy);
        return made;
    }
    std::size_t unwrapped() const { return unwrapped_; }

private:
    project& opened_;
    const run::export_plan& plan_;
    std::size_t next_ = 0;
    std::size_t unwrapped_ = 0;
};

void tell(const export_options& options, const run::export_plan& plan,
          const std::vector<std::string>& remarks) {
    if (options.quiet) return;
    for (const std::string& each : remarks)
        std::cerr << words("предупреждение: ", "warning: ") << options.out.string() << ": " << each << '\n';
    std::ostream& to = is_stream(options.out) ? std::cerr : std::cout;  // the stream is the file's
    to << options.out.string() << ": " << plan.scenes.size() << words(" сцен", " scenes");
    if (plan.layers.size() > 1) {
        std::string layers;
        for (const run::planned_layer& each : plan.layers)
            append_item(layers, each.written.name + ' ' + std::to_string(each.scenes));
        to << words(", слоёв ", ", layers ") << plan.layers.size() << ": " << layers;
    } else if (plan.unwraps && !plan.layers.front().proj4.empty()) {
        to << words(", долгота и широта WGS 84", ", longitude and latitude on WGS 84");
    }
    to << '\n';
}

exit_code export_project(const export_options& options) try {
    std::optional<run::target> goal;
    if (options.to) goal = run::read_target(*options.to);
    if (goal && goal->none())
        throw failure(exit_code::nothing_done,
                      words("экспорту нужна проекция, а не \"none\"",
                            "export needs a projection to transform to, not \"none\""));
    for (const auto& each : files_of(options.out)) check_output(each, options.overwrite);
    const auto opened = run::open_project(options.project, open_mode::read_only);
    auto scenes = options.scenes.empty() ? run::all_scenes(*opened)
                                         : run::select_scenes(*opened, options.scenes, false);
    const run::export_plan plan = run::plan_export(std::move(scenes), options.out, goal);
    scene_source source(*opened, plan);
    export_order order{
        options.out, options.overwrite, {}, opened->fields(), plan.prj, plan.companion, [&source] {
            return source.next();
        }};
    for (const run::planned_layer& each : plan.layers) order.layers.push_back(each.written);
    std::vector<std::string> remarks = plan.remarks;
    for (std::string& each : load_exchange().export_lines(order)) remarks.push_back(std::move(each));
    if (source.unwrapped())
        remarks.push_back(words("линии, пересекающие 180°, с долготами за 180: ",
                                "lines across 180 degrees, whose longitudes go on beyond 180: ") +
                          std::to_string(source.unwrapped()));
    tell(options, plan, remarks);
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
            "out", options->out,
            words("Файл; его расширение — формат. GeoPackage: слой на каждую проекцию; Shapefile: одна "
                  "проекция; GeoJSON: долгота и широта WGS 84, если нет --to",
                  "The file to write; its extension is the format. GeoPackage: a layer for each "
                  "projection; Shapefile: one projection; GeoJSON: longitude and latitude on WGS 84 "
                  "unless --to is given"))
        ->type_name("OUT.(geojson|gpkg|shp)")
        ->required();
    command
        ->add_option("--to", options->to,
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
    add_overwrite(*command, options->overwrite);
    command->add_flag("--quiet", options->quiet,
                      words("Сообщать только об ошибках", "Say nothing but errors"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return export_project(*options); }; });
}

}  // namespace oxhost::app
