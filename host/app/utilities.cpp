#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "headless/dialog_hands.h"
#include "run/request.h"
#include "run/utility_run.h"
#include "session/interruption.h"
#include "shell/bundle_host.h"

namespace oxhost::app {

namespace {

struct utilities_options {
    std::filesystem::path project;  ///< empty for none
    std::filesystem::path bundle;
    std::string run;  ///< id of the utility; empty to list them
    console_options console;
};

/// Prints every dialog, accepts it as it stands and leaves it. Chooses no files.
class accepting_user final : public shell::dialog_user {
public:
    void serve(shell::open_dialog& dialog) override {
        std::cout << headless::dialog_text(dialog) << std::flush;
        const auto buttons = dialog.buttons();
        const auto accept =
            std::ranges::find(buttons, shell::button_role::accept, &shell::dialog_button::role);
        if (accept == buttons.end() || !dialog.press(static_cast<std::size_t>(accept - buttons.begin())))
            dialog.dismiss();
    }
    std::optional<std::filesystem::path> choose_file(const shell::file_question&) override { return {}; }
};

exit_code run_on(project* opened, shell::bundle_host& host, const utilities_options& options) {
    messages::instance().use(std::make_unique<console_messages>(console::standard(), options.console));
    const auto results = run::run_utility(opened, host, options.run);
    for (const run::scene_result& each : results)
        if (each.failure) std::cerr << failure_line(each) << '\n';
    if (opened) opened->close();
    if (count(results, run::outcome::failed)) return exit_code::scene_failed;
    if (messages::instance().declined()) return exit_code::answered_no;
    const auto& shown = messages::instance().shown();
    const bool refused = std::ranges::find(shown, message_kind::error, &shown_message::kind) != shown.end();
    return refused ? exit_code::nothing_done : exit_code::done;
}

exit_code utilities(const utilities_options& options) {
    ignore_closed_pipes();
    std::unique_ptr<project> opened;
    if (!options.project.empty())
        opened = run::open_project(options.project,
                                   options.run.empty() ? open_mode::read_only : open_mode::read_write);
    accepting_user user;
    shell::bundle_host host(options.bundle, user);
    if (options.run.empty()) {
        for (const auto& each : host.utilities()) std::cout << each.id << "  " << host.caption(each) << '\n';
        return exit_code::done;
    }
    if (std::ranges::find(host.utilities(), options.run, &shell::offered_utility::id) ==
        host.utilities().end())
        throw failure(
            exit_code::nothing_done,
            options.bundle.string() + words(": нет утилиты ", ": offers no utility ") + options.run);
    return run_on(opened.get(), host, options);
}

}  // namespace

void add_utilities(CLI::App& app, action& chosen) {
    auto options = std::make_shared<utilities_options>();
    CLI::App* command = app.add_subcommand(
        "utilities", words("Показать утилиты модуля или выполнить одну из них как есть",
                           "List the utilities that a plug-in offers, or run one as it stands"));
    command
        ->add_option("project", options->project,
                     words("Проект, с которым она работает", "The project to run it on"))
        ->type_name("PROJECT.gpkg");
    command
        ->add_option("--run", options->run,
                     words("Напечатать диалог этой утилиты и подтвердить его",
                           "Print this utility's dialog and accept it"))
        ->type_name("ID");
    add_answers(*command, options->console);
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return utilities(*options); }; });
}

}  // namespace oxhost::app
