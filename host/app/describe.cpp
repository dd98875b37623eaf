#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "base/language.h"
#include "base/numbers.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/official.h"
#include "geodesy/warnings.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

void print_line(std::string_view russian, std::string_view english, const std::string& text) {
    if (!text.empty()) std::cout << in_language(russian, english) << ": " << text << '\n';
}

std::string text_of(const geographic_area& area) {
    return number_text(area.west) + ".." + number_text(area.east) + "°, " + number_text(area.south) + ".." +
           number_text(area.north) + words("° (долгота, широта)", "° (longitude, latitude)");
}

std::string text_of(const published_shift& shift) {
    std::string text = shift.code + ", " + shift.name + ": ";
    for (std::size_t i = 0; i < shift.values.size(); ++i)
        text += (i ? "," : "") + number_text(shift.values[i]);
    if (shift.accuracy)
        text += words("; точность ", "; accuracy ") + number_text(*shift.accuracy) + words(" м", " m");
    return text + "; " + text_of(geographic_area{shift.west, shift.south, shift.east, shift.north});
}

void print_official(const official_system& system) {
    print_line("Название", "Name",
               system.name + (system.deprecated ? words(" (устарела)", " (deprecated)") : ""));
    print_line("Вид", "Kind", system.kind);
    print_line("Область применения", "Area of use", system.area);
    if (system.bounds) print_line("Границы", "Bounds", text_of(*system.bounds));
}

/// What an authority's code, name or definition says by itself; nothing for files and proj4 texts.
std::optional<official_system> official_of(const std::string& given) {
    if (given.find("proj=") != given.npos || given.find("init=") != given.npos) return {};
    return official(parse_whole_number(given) ? "EPSG:" + given : given, current_language());
}

exit_code describe_target(const std::string& given) {
    auto system = official_of(given);
    if (system && !system->maps) {
        print_official(*system);
        return exit_code::done;
    }
    const run::target described = run::read_target(given);
    if (described.none()) {
        std::cout << describe("", current_language()) << '\n';
        return exit_code::done;
    }
    const auto code = epsg_code(described.proj4);
    if (!system && code) system = official(*code, current_language());
    if (system) print_official(*system);
    const crs_facts facts = facts_of(described.proj4, current_language());
    print_line("proj4", "proj4", described.proj4);
    print_line("Проекция", "Projection", facts.projection);
    print_line("Параметры", "Parameters", facts.parameters);
    print_line("Единицы", "Units", facts.units);
    print_line("Эллипсоид", "Ellipsoid", facts.ellipsoid);
    print_line("Датум", "Datum", facts.datum);
    print_line("EPSG", "EPSG", code.value_or(words("нет", "none")));
    if (system)
        for (const published_shift& shift : system->shifts)
            print_line("Опубликованный переход к WGS 84", "Published shift to WGS 84", text_of(shift));
    for (const std::string& each : warnings_for(described.proj4, current_language()))
        print_line("Предупреждение", "Warning", each);
    return exit_code::done;
}

}  // namespace

void add_describe(CLI::App& app, action& chosen) {
    auto given = std::make_shared<std::string>();
    CLI::App* command = app.add_subcommand(
        "describe", words("Рассказать о проекции: название, область применения, эллипсоид, датум, код EPSG, "
                          "опубликованные переходы, предупреждения",
                          "Tell what a projection is: name, area of use, ellipsoid, datum, EPSG code, "
                          "published shifts, warnings"));
    command->add_option("target", *given, target_help)->type_name("TARGET")->required();
    add_language(*command);
    command->callback([given, &chosen] { chosen = [given] { return describe_target(*given); }; });
}

}  // namespace oxhost::app
