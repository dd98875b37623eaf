#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>

#include "app/command.h"
#include "base/language.h"
#include "base/text.h"
#include "run/report.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

struct undo_options {
    std::filesystem::path project;
    bool list = false;
    bool json = false;
    bool force = false;
    bool quiet = false;
};

/// "2026-11-23 21:30:00 UTC, EPSG:32640"
std::string name_of(const past_run& run) {
    std::string date = run.started.substr(0, 19);
    if (date.size() == 19) date[10] = ' ';
    return date + " UTC, " + run.goal.given;
}

void print_json(const std::vector<past_run>& runs) {
    auto rows = nlohmann::ordered_json::array();
    for (const past_run& each : runs)
        rows.push_back({{"id", each.id},
                        {"started", each.started},
                        {"target", each.goal.given},
                        {"proj4", each.goal.proj4},
                        {"scenes", each.scenes}});
    std::cout << run::json_text(rows) << '\n';
}

exit_code list(const undo_options& options) {
    const auto runs = run::open_project(options.project, open_mode::read_only)->past_runs();
    if (options.json) {
        print_json(runs);
        return exit_code::done;
    }
    if (runs.empty()) std::cout << words("Отменять нечего", "Nothing to undo") << '\n';
    for (const past_run& each : runs)
        std::cout << name_of(each) << words(", сцен: ", ", scenes: ") << each.scenes << '\n';
    return exit_code::done;
}

/// The first few, and how many more.
std::string enumeration(const std::vector<std::string>& scenes) {
    constexpr std::size_t most_named = 20;
    std::string text;
    for (std::size_t i = 0; i < std::min(scenes.size(), most_named); ++i) append_item(text, scenes[i]);
    if (scenes.size() > most_named)
        text += words(" и ещё ", " and ") + std::to_string(scenes.size() - most_named) + words("", " more");
    return text;
}

void tell_trouble(const undo_options& options, const undone& result) {
    const auto line = [&](const std::string& words, const std::vector<std::string>& scenes,
                          const std::string& hint) {
        if (scenes.empty()) return;
        std::cerr << options.project.string() << ": " << words << ": " << scenes.size() << ": "
                  << enumeration(scenes) << hint << '\n';
    };
    if (options.force) {
        line(words("сцены, изменённые после запуска не им, перезаписаны",
                   "scenes that something else has changed since the run, overwritten"),
             result.changed_since, "");
        line(words("сцен больше нет в проекте, их записи удалены",
                   "scenes no longer in the project, their records dropped"),
             result.gone, "");
    } else {
        line(words("сцены, изменённые после запуска не им, оставлены как есть",
                   "scenes that something else has changed since the run, left alone"),
             result.changed_since, words("; --force вернёт и их", "; --force takes them back all the same"));
        line(words("сцен больше нет в проекте", "scenes no longer in the project"), result.gone,
             words("; --force удалит их записи", "; --force drops their records"));
    }
}

exit_code undo(const undo_options& options) {
    if (options.list) return list(options);
    const auto opened = run::open_project(options.project, open_mode::read_write);
    const auto result = opened->undo(options.force ? later_changes::overwritten : later_changes::respected);
    opened->close();
    if (!result)
        throw failure(exit_code::nothing_done,
                      options.project.string() + ": " + words("отменять нечего", "nothing to undo"));
    tell_trouble(options, *result);
    if (!options.quiet)
        std::cout << words("Отмена запуска ", "Undo of the run ") << name_of(result->run)
                  << words(": возвращено сцен: ", ": scenes taken back: ") << result->taken_back << '\n';
    const bool all = result->gone.empty() && (options.force || result->changed_since.empty());
    return all ? exit_code::done : exit_code::scene_failed;
}

}  // namespace

void add_undo(CLI::App& app, action& chosen) {
    auto options = std::make_shared<undo_options>();
    CLI::App* command =
        app.add_subcommand("undo", words("Отменить последнее перепроецирование сцен проекта",
                                         "Take back the last reprojection of a project's scenes"));
    command->add_option("project", options->project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    auto* list = command->add_flag("--list", options->list,
                                   words("Показать запуски, которые можно отменить, новые первыми",
                                         "Show the runs that can be undone, newest first"));
    command
        ->add_flag("--json", options->json,
                   words("В виде JSON: id, started, target, proj4, scenes",
                         "As JSON: id, started, target, proj4, scenes"))
        ->needs(list);
    command
        ->add_flag("--force", options->force,
                   words("И сцены, изменённые с тех пор другой программой",
                         "Scenes that another program has changed since as well"))
        ->excludes(list);
    command->add_flag("--quiet", options->quiet,
                      words("Сообщать только об ошибках", "Say nothing but errors"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return undo(*options); }; });
}

}  // namespace oxhost::app
