#include "geodesy/favourites.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <nlohmann/json.hpp>

#include "app/command.h"
#include "base/files.h"
#include "base/numbers.h"
#include "geodesy/description.h"
#include "run/report.h"

namespace oxhost::app {

namespace {

using list_act = std::function<void(favourite_list&)>;

struct favourites_options {
    std::vector<list_act> acts;
    bool json = false;
};

/// By its caption, else by its number, counted from 1.
std::optional<std::int32_t> find(const favourite_list& list, const std::string& wanted) {
    std::optional<std::int32_t> found;
    for (std::int32_t i = 0; i < list.count(); ++i) {
        if (list.at(i)->caption != wanted) continue;
        if (found)
            throw failure(
                exit_code::nothing_done,
                words("несколько избранных проекций названы \"", "several favourites are called \"") +
                    wanted + words("\": укажите номер", "\": name one by its number"));
        found = i;
    }
    if (found) return found;
    const auto number = parse_whole_number(wanted);
    return number && *number >= 1 && *number <= list.count()
               ? std::optional(static_cast<std::int32_t>(*number - 1))
               : std::nullopt;
}

[[noreturn]] void refuse_unknown(const std::string& wanted) {
    throw failure(exit_code::nothing_done,
                  words("нет избранной проекции \"", "no favourite \"") + wanted + '"');
}

/// A caption may hold "=" itself: the first place counts before which a favourite is named.
list_act renaming(const std::string& given) {
    const auto first = given.find('=');
    if (first == given.npos || first == 0)
        throw CLI::ValidationError("--rename", given + words(": не СТАРОЕ=НОВОЕ", ": is not OLD=NEW"));
    return [given, first](favourite_list& list) {
        for (auto equals = first; equals != given.npos; equals = given.find('=', equals + 1)) {
            const auto found = find(list, given.substr(0, equals));
            if (found) return list.rename(*found, given.substr(equals + 1));
        }
        refuse_unknown(given.substr(0, first));
    };
}

list_act removing(const std::string& wanted) {
    return [wanted](favourite_list& list) {
        const auto found = find(list, wanted);
        found ? list.remove(*found) : refuse_unknown(wanted);
    };
}

void print(const favourite_list& list, bool json) {
    auto rows = nlohmann::ordered_json::array();
    for (std::int32_t i = 0; i < list.count(); ++i) {
        const auto& [caption, proj4] = *list.at(i);
        const std::string description = short_description(proj4, current_language());
        rows.push_back(
            {{"number", i + 1}, {"caption", caption}, {"proj4", proj4}, {"description", description}});
        if (!json)
            std::cout << i + 1 << ". " << caption << "\n   " << description << "\n   " << proj4 << '\n';
    }
    if (json) std::cout << run::json_text(rows) << '\n';
}

exit_code edit_favourites(const favourites_options& options) {
    favourite_list list;
    if (const auto complaint = list.load()) throw failure(exit_code::unreadable, *complaint);
    for (const list_act& act : options.acts) act(list);
    options.acts.empty() ? print(list, options.json) : list.save();
    return exit_code::done;
}

}  // namespace

void add_favourites(CLI::App& app, action& chosen) {
    auto options = std::make_shared<favourites_options>();
    CLI::App* command =
        app.add_subcommand("favourites", words("Показать избранные проекции, переименовать или убрать их",
                                               "List the favourite projections, rename or remove them"));
    const auto add = [&](const char* name, list_act (*make)(const std::string&), const char* type,
                         std::string help) {
        command
            ->add_option_function<std::string>(
                name, [options, make](const std::string& value) { options->acts.push_back(make(value)); },
                std::move(help))
            ->type_name(type)
            ->trigger_on_parse();
    };
    add("--rename", renaming, "OLD=NEW",
        words("Переименовать проекцию, названную по имени или номеру",
              "Rename a favourite, which is named by its caption or number"));
    add("--remove", removing, "NAME",
        words("Убрать проекцию, названную по имени или номеру",
              "Remove a favourite of that caption or number"));
    command->add_flag("--json", options->json,
                      words("В виде JSON: number, caption, proj4, description",
                            "As JSON: number, caption, proj4, description"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return edit_favourites(*options); }; });
}

}  // namespace oxhost::app
