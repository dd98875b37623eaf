#include <CLI/CLI.hpp>

#include "run/reprojection.h"

namespace oxhost::app {

void add_reproject(CLI::App& app, action& chosen) {
    auto options = std::make_shared<reprojection>();
    CLI::App* command =
        app.add_subcommand("reproject", "Bring the lines of profile scenes into a projection");
    command->add_option("project", options->project, "The project")->type_name("PROJECT.gpkg")->required();
    command->add_option("--to", options->to, target_help)->type_name("TARGET")->required();

    auto* which = command->add_option_group("scenes", "Which scenes");
    which->add_flag("--all", options->all, "Every profile scene");
    which->add_option("--scene", options->scenes, "Scenes by number or caption")->type_name("INDEX|CAPTION");
    which->require_option(1);

    auto* yes = command->add_flag_callback(
        "--yes", [options] { options->questions = answering::yes; }, "Answer questions with yes");
    command
        ->add_flag_callback(
            "--no", [options] { options->questions = answering::no; }, "Answer questions with no")
        ->excludes(yes);
    command->add_flag("--dry-run", options->dry_run, "Do all of it, but leave the project as it is");
    static const std::map<std::string, on_error> policies{
        {"stop", on_error::stop}, {"skip", on_error::skip}, {"rollback", on_error::rollback}};
    command
        ->add_option("--on-error", options->policy,
                     "After a failed scene: stop (default), skip it and go on, or rollback all")
        ->type_name("stop|skip|rollback")
        ->transform(CLI::CheckedTransformer(policies).description(""));
    command->add_option("--report", options->report, "What became of each scene, as JSON")
        ->type_name("FILE.json");
    command->add_option("--map", options->map, "A picture of the lines before and after")
        ->type_name("FILE.svg");
    command->add_flag("--quiet", options->quiet, "Say nothing but errors and questions");
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return reproject(*options); }; });
}

}  // namespace oxhost::app
