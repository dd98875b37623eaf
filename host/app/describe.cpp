#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "base/language.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/warnings.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

exit_code describe_target(const std::string& given) {
    const run::target described = run::read_target(given);
    const auto line = [](std::string_view russian, std::string_view english, const std::string& text) {
        if (!text.empty()) std::cout << in_language(russian, english) << ": " << text << '\n';
    };
    if (described.none()) {
        std::cout << describe("", current_language()) << '\n';
        return exit_code::done;
    }
    const crs_facts facts = facts_of(described.proj4, current_language());
    line("proj4", "proj4", described.proj4);
    line("Проекция", "Projection", facts.projection);
    line("Параметры", "Parameters", facts.parameters);
    line("Единицы", "Units", facts.units);
    line("Эллипсоид", "Ellipsoid", facts.ellipsoid);
    line("Датум", "Datum", facts.datum);
    line("EPSG", "EPSG", epsg_code(described.proj4).value_or(std::string(in_language("нет", "none"))));
    for (const std::string& each : warnings_for(described.proj4, current_language()))
        line("Предупреждение", "Warning", each);
    return exit_code::done;
}

}  // namespace

void add_describe(CLI::App& app, action& chosen) {
    auto given = std::make_shared<std::string>();
    CLI::App* command =
        app.add_subcommand("describe", "Tell what a projection is: EPSG code, ellipsoid, datum, warnings");
    command->add_option("target", *given, target_help)->type_name("TARGET")->required();
    add_language(*command);
    command->callback([given, &chosen] { chosen = [given] { return describe_target(*given); }; });
}

}  // namespace oxhost::app
