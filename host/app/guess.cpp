#include "geodesy/guess.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "app/command.h"
#include "base/numbers.h"
#include "catalogue/index.h"
#include "run/guess_hints.h"
#include "run/plug_in.h"
#include "run/report.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

struct guess_options {
    std::filesystem::path project;
    std::vector<std::string> scenes;
    std::optional<point> near;
    std::size_t count = 5;
    bool json = false;
};

point place_in(const std::string& given) {
    const auto comma = given.find(',');
    const auto longitude = parse_number(given.substr(0, comma));
    const auto latitude = comma == given.npos ? std::nullopt : parse_number(given.substr(comma + 1));
    if (!longitude || !latitude || std::abs(*longitude) > 360 || std::abs(*latitude) > 90)
        throw CLI::ValidationError(
            "--near", given + words(": не ДОЛГОТА,ШИРОТА в градусах", ": is not LON,LAT in degrees"));
    return {*longitude, *latitude};
}

std::string degrees(double value, std::string_view positive, std::string_view negative) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(4) << std::abs(value) << "° "
         << (value < 0 ? negative : positive);
    return text.str();
}

void print(std::size_t number, const system_guess& guess, const std::vector<std::string>& zones) {
    const std::string indent = "     ";
    std::cout << std::setw(3) << number << ". " << guess.code << "  " << guess.name
              << (guess.deprecated ? in_language("  (устарела)", "  (deprecated)") : "") << '\n'
              << indent << degrees(guess.place.y, in_language("с. ш.", "N"), in_language("ю. ш.", "S"))
              << ", " << degrees(guess.place.x, in_language("в. д.", "E"), in_language("з. д.", "W"));
    if (guess.distance)
        std::cout << ", " << std::llround(*guess.distance / 1000) << in_language(" км отсюда", " km off");
    std::cout << "; " << guess.area << '\n';
    for (const std::string& zone : zones)
        std::cout << indent << in_language("в каталоге: ", "in the catalogue: ") << zone << '\n';
}

nlohmann::ordered_json json_of(const system_guess& guess, const std::vector<std::string>& zones) {
    nlohmann::ordered_json entry{
        {"code", guess.code},   {"name", guess.name},         {"deprecated", guess.deprecated},
        {"area", guess.area},   {"longitude", guess.place.x}, {"latitude", guess.place.y},
        {"proj4", guess.proj4}, {"catalogue", zones}};
    if (guess.distance) entry["distance_m"] = *guess.distance;
    return entry;
}

exit_code guess(const guess_options& options) {
    const auto opened = run::open_project(options.project, open_mode::read_only);
    const std::vector<scene*> asked = run::select_scenes(*opened, options.scenes);
    const catalogue_index index(run::catalogue_folder() / catalogue_index_file);
    guess_hints hints = run::hints_of(*opened, asked);
    if (options.near) hints.near = {*options.near};
    auto rows = nlohmann::ordered_json::array();
    bool all_found = true;
    for (const scene* each : asked) {
        const auto found = guess_systems(opened->read_line(*each).xy, hints, options.count);
        all_found = all_found && !found.empty();
        auto guesses = nlohmann::ordered_json::array();
        if (!options.json) std::cout << each->index << "  " << each->caption << '\n';
        if (!options.json && found.empty())
            std::cout << words("     ни в одной системе линия не попадает в область её применения",
                               "     in no system does the line fall into its area of use")
                      << '\n';
        for (std::size_t i = 0; i < found.size(); ++i) {
            const auto zones = index.zones_of(found[i].code);
            options.json ? guesses.push_back(json_of(found[i], zones)) : print(i + 1, found[i], zones);
        }
        rows.push_back({{"index", each->index}, {"caption", each->caption}, {"guesses", guesses}});
    }
    if (options.json) std::cout << run::json_text(rows) << '\n';
    return all_found ? exit_code::done : exit_code::scene_failed;
}

}  // namespace

void add_guess(CLI::App& app, action& chosen) {
    auto options = std::make_shared<guess_options>();
    CLI::App* command = app.add_subcommand(
        "guess",
        words("Предположить, в какой проекции линии: системы, в область применения которых они попадают, "
              "лучшие первыми",
              "Guess the projection of lines: the systems in whose area of use they fall, best first"));
    command->add_option("project", options->project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command
        ->add_option("--scene", options->scenes,
                     words("Сцена: номер или название", "A scene, by index or caption"))
        ->type_name("INDEX|CAPTION")
        ->required();
    command
        ->add_option_function<std::string>(
            "--near", [options](const std::string& given) { options->near = place_in(given); },
            words("Место, около которого должны быть линии, в градусах (без него — другие линии проекта)",
                  "A place near which the lines should be, in degrees (default: the project's other lines)"))
        ->type_name("LON,LAT");
    command
        ->add_option("--count", options->count,
                     words("Сколько систем показать для линии (без него 5)",
                           "How many systems to show for a line (default: 5)"))
        ->type_name("N")
        ->check(CLI::Range(1, 1000).description(""));
    command->add_flag("--json", options->json, words("В виде JSON", "As JSON"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return guess(*options); }; });
}

}  // namespace oxhost::app
