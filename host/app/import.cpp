#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "base/files.h"
#include "base/language.h"
#include "base/memo.h"
#include "exchange/exchange.h"
#include "geodesy/crs_import.h"
#include "geodesy/projection_files.h"
#include "geodesy/text_difference.h"
#include "project/addition.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

struct import_command {
    fs::path project;
    std::vector<fs::path> sources;
    std::optional<std::string> proj4;
    bool not_profile = false;
    std::string layer;
    point_columns points;
    bool quiet = false;
};

/// The project that scenes are added to, made with the first layer that has any. All are kept by `commit`;
/// without it none, and a project that was made for them vanishes.
class destination final : public scene_taker {
public:
    explicit destination(const fs::path& file) : file_(file) {
        std::error_code ignored;
        fresh_ = !fs::exists(file, ignored);
        if (fresh_)
            check_writable(file);
        else
            open(run::open_project(file, open_mode::read_write));
    }
    ~destination() override {
        added_.reset();
        if (fresh_ && project_) try {
                project_->discard();
            } catch (const std::exception&) {  // what made the import fail is told
            }
    }
    destination(const destination&) = delete;
    destination& operator=(const destination&) = delete;

    std::vector<std::string> begin_layer(std::span<const field> fields) override {
        if (!project_) open(project::create(file_));
        return added_->take_fields(fields);
    }
    void take(const new_scene& scene) override { added_->add(scene); }

    std::size_t count() const { return added_ ? added_->count() : 0; }
    void commit() {
        added_->commit();
        fresh_ = false;
        added_.reset();
        project_->close();
    }

private:
    void open(std::unique_ptr<project> opened) {
        project_ = std::move(opened);
        added_.emplace(*project_);
    }

    const fs::path& file_;
    bool fresh_ = false;
    std::unique_ptr<project> project_;
    std::optional<addition> added_;
};

std::string text_of_prj(const fs::path& file) try {
    return load_prj(file.string());
} catch (const file_error&) {
    return {};
}

import_options options_of(const import_command& command) {
    import_options how;
    if (command.proj4) how.proj4 = run::read_target(*command.proj4).proj4;
    how.not_profile = command.not_profile;
    how.layer = command.layer;
    how.points = command.points;
    how.crs_text = [known = std::make_shared<memo<std::string>>(1000)](std::string_view definition) {
        return known->of(definition, [&] { return import_crs(definition).value_or(""); });
    };
    how.crs_difference = [](std::string_view definition, std::string_view proj4) {
        return difference_line(difference_of(definition, proj4, current_language()), current_language());
    };
    how.prj_text = text_of_prj;
    return how;
}

void print(const fs::path& source, const import_report& report) {
    std::cout << source.string() << ": " << report.scenes << in_language(" сцен", " scenes");
    if (!report.losses.empty()) std::cout << "; " << report.losses;
    std::cout << '\n';
    for (const std::string& each : report.remarks) std::cout << source.string() << ": " << each << '\n';
}

exit_code import(const import_command& command) try {
    for (const fs::path& source : command.sources) {
        std::error_code ignored;
        if (fs::equivalent(source, command.project, ignored))
            throw failure(exit_code::nothing_done,
                          source.string() + words(": это сам проект", ": is the project itself"));
    }
    const import_options how = options_of(command);
    std::vector<import_report> reports;
    try {
        destination scenes(command.project);
        for (const fs::path& source : command.sources)
            reports.push_back(load_exchange().import_lines(source, how, scenes));
        if (scenes.count() > 0)
            scenes.commit();
        else
            reports.resize(1);
    } catch (const project_error& e) {
        throw failure(exit_code::nothing_done, e.what());
    }
    const bool nothing = std::ranges::all_of(reports, [](const auto& each) { return each.scenes == 0; });
    if (!nothing && !command.quiet)
        for (std::size_t i = 0; i < reports.size(); ++i) print(command.sources[i], reports[i]);
    if (!nothing) return exit_code::done;
    std::string line = command.sources.front().string() + words(": нет линий", ": no lines");
    if (!reports[0].losses.empty()) line += "; " + reports[0].losses;
    for (const std::string& each : reports[0].remarks) line += "; " + each;
    throw failure(exit_code::nothing_done, line);
} catch (const exchange_error& e) {
    throw failure(exit_code::unreadable, e.what());
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
    command->add_option("sources", options->sources, text("Файлы с линиями", "Files with lines"))
        ->type_name("SOURCE")
        ->required();
    command
        ->add_option("--proj4", options->proj4,
                     text("Проекция всех линий вместо указанной в файлах: ",
                          "Projection of all lines, in place of what the sources say: ") +
                         std::string(target_help))
        ->type_name("TEXT");
    command->add_flag("--not-profile", options->not_profile,
                      text("Сцены не являются разрезами", "The scenes are no profiles"));
    command->add_option("--layer", options->layer, text("Читать только этот слой", "Read this layer only"))
        ->type_name("NAME");
    const auto add_column = [&](const char* name, std::string& column, const std::string& help) {
        command->add_option(name, column, help)->type_name("FIELD");
    };
    add_column(
        "--line", options->points.line,
        text("Таблица точек: поле линии, одна сцена на значение; --line, --x, ... ищутся и сами",
             "Table of points: field of the line, a scene per value; --line, --x, ... are also found by "
             "their usual names"));
    add_column("--order", options->points.order,
               text("Таблица точек: поле порядка вдоль линии",
                    "Table of points: field of the order along the line"));
    add_column(
        "--x", options->points.x,
        text("Таблица точек: восточная координата или долгота", "Table of points: easting or longitude"));
    add_column(
        "--y", options->points.y,
        text("Таблица точек: северная координата или широта", "Table of points: northing or latitude"));
    add_column("--z", options->points.z, text("Таблица точек: высота", "Table of points: height"));
    command->add_flag("--quiet", options->quiet,
                      text("Сообщать только об ошибках", "Say nothing but errors"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return import(*options); }; });
}

}  // namespace oxhost::app
