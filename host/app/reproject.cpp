#include <signal.h>

#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "app/outputs.h"
#include "base/files.h"
#include "base/language.h"
#include "run/outputs.h"
#include "run/report.h"
#include "session/console_messages.h"
#include "session/interruption.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;
using run::outcome;

struct reproject_options {
    run::order wanted;
    bool all = false;
    std::vector<std::string> scenes;
    console_options console;
    fs::path report;  ///< empty for none
    fs::path map;     ///< empty for none
    bool overwrite = false;
};

/// Everything that can be found wrong is found here, before anything changes.
void check_outputs(const reproject_options& options) {
    for (const fs::path& out : {options.report, options.map})
        if (!out.empty()) run::check_output(out, options.overwrite);
    if (!options.map.empty() && options.map == options.report)
        throw failure(exit_code::nothing_done,
                      options.map.string() +
                          words(": не может быть и отчётом, и картой", ": cannot be both report and map"));
}

/// Names the signal, and that it ended the work.
std::string interruption_line() {
    const std::string name = interrupting_signal() == SIGINT ? "SIGINT" : "SIGTERM";
    return "oxhost: " + words("прервано сигналом " + name, "interrupted by " + name);
}

exit_code code_of(const std::vector<run::scene_result>& results) {
    if (count(results, outcome::failed)) return exit_code::scene_failed;
    if (!count(results, outcome::not_attempted)) return exit_code::done;
    return messages::instance().declined() ? exit_code::answered_no : exit_code::nothing_done;
}

void tell(const reproject_options& options, const std::vector<run::scene_result>& results) {
    if (interrupting_signal()) std::cerr << interruption_line() << '\n';
    if (options.console.quiet) return;
    std::cout << summary(results);
    if (std::ranges::any_of(results, &run::scene_result::rolled_back))
        std::cout << in_language("; все сцены возвращены к прежнему виду",
                                 "; every scene is as it was before");
    std::cout << '\n';
    if (options.wanted.dry_run)
        std::cout << in_language("Пробный запуск: проект не изменён", "Dry run: the project is unchanged")
                  << '\n';
}

exit_code reproject(const reproject_options& options) {
    if (!options.all && options.scenes.empty() && options.wanted.sources.empty())
        throw failure(exit_code::usage, words("нужен один из параметров --all, --scene, --source",
                                              "one of the options --all, --scene, --source is needed"));
    ignore_closed_pipes();
    const interruption_watch watch;
    check_outputs(options);
    run::reprojection work(options.wanted);
    if (!options.console.quiet)
        for (const std::string& each : work.warnings())
            std::cerr << in_language("предупреждение: ", "warning: ") << each << '\n';
    if (!options.console.quiet)
        for (const std::string& each : work.operations()) std::cerr << each << '\n';
    messages::instance().use(std::make_unique<console_messages>(console::standard(), options.console));
    work.perform([](const run::scene_result& failed) { std::cerr << failure_line(failed) << '\n'; });
    exit_code code = code_of(work.results());
    try {
        work.roll_back_if_failed();
        if (options.wanted.keep_lines) {
            const run::record told = work.told();
            if (!options.report.empty()) write_output(options.report, report_text(told));
            if (!options.map.empty()) write_output(options.map, map_text(told));
        }
        work.close();
    } catch (const std::exception& e) {  // what became of the scenes is told all the same
        std::cerr << "oxhost: " << e.what() << '\n';
        if (code == exit_code::done) code = exit_code::nothing_done;
    }
    tell(options, work.results());
    return code;
}

}  // namespace

void add_reproject(CLI::App& app, action& chosen) {
    auto options = std::make_shared<reproject_options>();
    run::order& wanted = options->wanted;
    CLI::App* command =
        app.add_subcommand("reproject", words("Перевести линии сцен профилей в другую проекцию",
                                              "Bring the lines of profile scenes into a projection"));
    command->add_option("project", wanted.project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command->add_option("--to", wanted.target, target_help)->type_name("TARGET")->required();

    auto* all = command->add_flag("--all", options->all, words("Все сцены профилей", "Every profile scene"));
    command
        ->add_option("--scene", options->scenes,
                     words("Сцены по номеру, диапазону номеров, названию или образцу названий",
                           "Scenes by number, range of numbers, caption or pattern of captions"))
        ->type_name("INDEX|FIRST-LAST|CAPTION|PATTERN")
        ->excludes(all);
    command
        ->add_option("--source", wanted.sources,
                     words("Только сцены в этой проекции; вместо --all или вместе с --scene",
                           "Only scenes in this projection; in place of --all, or narrowing --scene"))
        ->type_name("TARGET");

    add_answers(*command, options->console);
    command->add_flag(
        "--dry-run", wanted.dry_run,
        words("Выполнить всё, но оставить проект прежним", "Do all of it, but leave the project as it is"));
    using run::on_error;
    static const std::map<std::string, on_error> policies{
        {"stop", on_error::stop}, {"skip", on_error::skip}, {"rollback", on_error::rollback}};
    command
        ->add_option("--on-error", wanted.policy,
                     words("После ошибки в сцене: остановиться (stop, по умолчанию), пропустить её (skip) "
                           "или вернуть всё (rollback)",
                           "After a failed scene: stop (default), skip it and go on, or rollback all"))
        ->type_name("stop|skip|rollback")
        ->transform(CLI::CheckedTransformer(policies).description(""));
    command->add_flag("--no-undo", wanted.no_undo,
                      words("Не хранить прежние линии: запуск нельзя будет отменить",
                            "Keep no former lines: the run cannot be undone"));
    command
        ->add_option("--report", options->report,
                     words("Что стало с каждой сценой, в JSON", "What became of each scene, as JSON"))
        ->type_name("FILE.json");
    command
        ->add_option("--map", options->map,
                     words("Карта линий до и после", "A picture of the lines before and after"))
        ->type_name("FILE.svg");
    command
        ->add_option("--return-tolerance", wanted.rules.return_tolerance,
                     words("На сколько метров вершина может не вернуться на своё место "
                           "(по умолчанию 0.01)",
                           "Metres by which a vertex may miss its place on the way back "
                           "(default 0.01)"))
        ->type_name("METRES")
        ->check(CLI::NonNegativeNumber);
    command->add_flag("--one-way", wanted.rules.one_way,
                      words("Разрешить целевую проекцию, из которой нет обратного пути",
                            "Allow a target from which there is no way back"));
    command
        ->add_option("--densify", wanted.rules.densify,
                     words("Добавить вершины там, где отрезок прогнулся бы больше",
                           "Add vertices where a segment would bow by more"))
        ->type_name("METRES")
        ->check(CLI::PositiveNumber);
    command
        ->add_option("--threads", wanted.threads,
                     words("Сколько потоков пересчитывают линии (по умолчанию все ядра); результат тот же",
                           "Threads that transform lines (default: all cores); the results are the same"))
        ->type_name("N")
        ->check(CLI::Range(1U, 256U).description(""));
    add_overwrite(*command, options->overwrite);
    command->add_flag("--quiet", options->console.quiet,
                      words("Сообщать только ошибки и вопросы", "Say nothing but errors and questions"));
    add_language(*command);
    add_bundle(*command, wanted.bundle);
    command->callback([options, &chosen] {
        if (!options->scenes.empty()) options->wanted.scenes = options->scenes;
        options->wanted.keep_lines = !options->report.empty() || !options->map.empty();
        chosen = [options] {
            const exit_code code = reproject(*options);
            end_by_signal();
            return code;
        };
    });
}

}  // namespace oxhost::app
