#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "app/outputs.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

using headless::dialog_hands;

/// One act in the dialog, as the command line orders it.
using dialog_act = std::function<void(run::projection_dialog&, dialog_hands&)>;

struct project_options {
    std::string text;
    std::vector<dialog_act> acts;
    std::vector<std::filesystem::path> outputs;
    bool overwrite = false;
    bool quiet = false;
    std::filesystem::path bundle;
};

dialog_act choosing(const std::string& given) {
    const auto equals = given.find('=');
    if (equals == given.npos || equals == 0)
        throw CLI::ValidationError("--choose", given + " is not CAPTION=VALUE");
    return [control = given.substr(0, equals), value = given.substr(equals + 1)](auto&, dialog_hands& hands) {
        hands.set(control, value);
    };
}

exit_code edit(const project_options& options) try {
    for (const std::filesystem::path& each : options.outputs) check_output(each, options.overwrite);
    // An empty text is what the dialog starts from when nothing is chosen.
    const run::target start = options.text.empty() ? run::target{} : run::read_target(options.text);
    run::projection_dialog dialog(options.bundle);
    std::string composed;
    dialog.open(start.proj4, [&](dialog_hands& hands) {
        for (const dialog_act& act : options.acts) act(dialog, hands);
        if (!options.quiet) std::cout << headless::dialog_text(hands.dialog()) << '\n';
        composed = dialog.text(hands);
    });
    std::cout << composed << '\n';
    return exit_code::done;
} catch (const headless::impossible& e) {
    throw failure(exit_code::nothing_done, e.what());
}

}  // namespace

void add_project(CLI::App& app, action& chosen) {
    auto options = std::make_shared<project_options>();
    const auto act = [options](dialog_act what) { options->acts.push_back(std::move(what)); };
    CLI::App* command =
        app.add_subcommand("project", "Compose a projection in the plug-in's dialog; acts go in order");
    command->add_option("text", options->text, std::string("Where to start: ") + target_help)
        ->type_name("TEXT");
    command
        ->add_option_function<std::vector<std::string>>(
            "--choose",
            [act](const std::vector<std::string>& all) {
                for (const std::string& each : all) act(choosing(each));
            },
            "Set a control, \"Group/Caption=Value\" where the caption fits several")
        ->type_name("CAPTION=VALUE")
        ->expected(1)
        ->trigger_on_parse();
    command
        ->add_option_function<std::string>(
            "--epsg",
            [act](const std::string& code) {
                act([code](run::projection_dialog& dialog, dialog_hands& hands) {
                    dialog.choose_crs(hands, code);
                });
            },
            "Import a coordinate system by its code")
        ->type_name("CODE")
        ->trigger_on_parse();
    command
        ->add_option_function<std::uint32_t>(
            "--favourite",
            [act](std::uint32_t number) {
                act([number](run::projection_dialog& dialog, dialog_hands& hands) {
                    dialog.take_favourite(hands, number);
                });
            },
            "Take a favourite, counted from 1")
        ->type_name("N")
        ->trigger_on_parse();
    command->add_flag_callback(
        "--add-favourite",
        [act] { act([](auto&, dialog_hands& hands) { hands.click_tool(run::plug_in_text::append_tool); }); },
        "Keep the projection as a favourite");
    command
        ->add_option_function<std::string>(
            "--save",
            [act, options](const std::string& file) {
                options->outputs.emplace_back(file);
                if (file.ends_with(".prj")) options->outputs.emplace_back(file + ".pj4");  // its companion
                act([file](run::projection_dialog& dialog, dialog_hands& hands) {
                    dialog.save(hands, file);
                });
            },
            "Save to a .pj4 or .prj file")
        ->type_name("FILE")
        ->trigger_on_parse();
    command
        ->add_option_function<std::string>(
            "--load",
            [act](const std::string& file) {
                run::read_target(file);
                act([file](run::projection_dialog& dialog, dialog_hands& hands) {
                    dialog.load(hands, file);
                });
            },
            "Load a .pj4 or .prj file")
        ->type_name("FILE")
        ->trigger_on_parse();
    add_overwrite(*command, options->overwrite);
    command->add_flag("--quiet", options->quiet, "Print the text only");
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return edit(*options); }; });
}

}  // namespace oxhost::app
