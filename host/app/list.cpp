#include <CLI/CLI.hpp>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>

#include "app/command.h"
#include "base/language.h"
#include "base/text.h"
#include "run/report.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

struct list_options {
    std::filesystem::path project;
    bool json = false;
};

std::size_t vertices(const scene& listed) { return listed.line ? listed.line->vertices : 0; }

void print_json(const project& opened) {
    auto rows = nlohmann::ordered_json::array();
    for (const scene& each : opened.scenes())
        rows.push_back({{"index", each.index},
                        {"caption", each.caption},
                        {"profile", each.profile},
                        {"proj4", each.proj4},
                        {"vertices", vertices(each)}});
    std::cout << run::json_text(rows) << '\n';
}

void print_table(const project& opened) {
    const std::string heads[] = {std::string(in_language("Сцена", "Scene")),
                                 std::string(in_language("Вершин", "Vertices")),
                                 std::string(in_language("Проекция", "Projection"))};
    std::size_t caption_width = character_count(heads[0]);
    for (const scene& each : opened.scenes())
        caption_width = std::max(caption_width, character_count(each.caption));
    const auto row = [&](const std::string& index, const std::string& caption, const std::string& count,
                         const std::string& projection) {
        std::cout << std::setw(5) << index << "  " << caption
                  << std::string(caption_width - character_count(caption), ' ') << "  "
                  << std::string(9 - std::min<std::size_t>(9, character_count(count)), ' ') << count << "  "
                  << projection << '\n';
    };
    row("#", heads[0], heads[1], heads[2]);
    for (const scene& each : opened.scenes()) {
        std::string projection = each.proj4.empty() ? std::string(in_language("нет", "none")) : each.proj4;
        if (!each.profile) projection.insert(0, in_language("(не разрез) ", "(no profile) "));
        row(std::to_string(each.index), each.caption, std::to_string(vertices(each)), projection);
    }
}

exit_code list(const list_options& options) {
    const auto opened = run::open_project(options.project, open_mode::read_only);
    options.json ? print_json(*opened) : print_table(*opened);
    return exit_code::done;
}

}  // namespace

void add_list(CLI::App& app, action& chosen) {
    auto options = std::make_shared<list_options>();
    CLI::App* command =
        app.add_subcommand("list", words("Показать сцены проекта", "List the scenes of a project"));
    command->add_option("project", options->project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command->add_flag("--json", options->json,
                      words("В виде JSON: index, caption, profile, proj4, vertices, epsg",
                            "As JSON: index, caption, profile, proj4, vertices, epsg"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return list(*options); }; });
}

}  // namespace oxhost::app
