#include <CLI/CLI.hpp>
#include <algorithm>
#include <numeric>
#include <string_view>

#include "app/command.h"
#include "app/help.h"
#include "base/language.h"
#include "base/text.h"

namespace oxhost::app {

namespace {

using names = std::vector<std::string>;

std::string in_quotes(std::string_view text) {
    return words("«", "\"").append(text).append(words("»", "\""));
}

/// Letters to insert, delete, replace or swap with their neighbour until one becomes the other.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), current(b.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        current[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = a[i - 1] == b[j - 1];
            current[j] = std::min({last[j] + 1, current[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                current[j] = std::min(current[j], before[j - 2] + 1);
        }
        std::swap(before, last);
        std::swap(last, current);
    }
    return last[b.size()];
}

/// "; perhaps --to"; empty when no name is near.
std::string hint(const std::string& misspelled, const names& known) {
    const std::string* nearest = nullptr;
    std::size_t least = std::max<std::size_t>(2, misspelled.size() / 3) + 1;
    for (const std::string& each : known) {
        const bool begun = misspelled.size() > 3 && each.starts_with(misspelled);
        const std::size_t apart = begun ? 1 : distance(lower(misspelled), each);
        if (apart < least && apart < each.size()) {
            least = apart;
            nearest = &each;
        }
    }
    return nearest ? words("; возможно, ", "; perhaps ") + *nearest : "";
}

/// A subcommand, or the program, with its groups of options.
std::vector<const CLI::App*> parts_of(const CLI::App& command) {
    std::vector<const CLI::App*> parts{&command};
    for (const CLI::App* each : command.get_subcommands(std::function<bool(const CLI::App*)>()))
        if (each->get_name().empty()) parts.push_back(each);
    return parts;
}

std::vector<const CLI::Option*> options_of(const CLI::App& command) {
    std::vector<const CLI::Option*> options;
    for (const CLI::App* part : parts_of(command))
        for (const CLI::Option* each : part->get_options()) options.push_back(each);
    return options;
}

/// "--to TARGET", or a placeholder alone.
std::string form_of(const CLI::Option& option) {
    if (option.get_positional()) return option.get_type_name();
    return option.get_name() + ' ' + option.get_type_name();
}

std::string unknown_word(const CLI::App& app, const CLI::App& command, const names& extras) {
    const auto dashed =
        std::ranges::find_if(extras, [](const std::string& w) { return w.size() > 1 && w.starts_with('-'); });
    const bool before_command = !app.remaining(false).empty();
    if (const auto plain =
            std::ranges::find_if(extras, [](const std::string& w) { return !w.starts_with('-'); });
        before_command && plain != extras.end()) {
        names commands;
        for (const CLI::App* each : app.get_subcommands(std::function<bool(const CLI::App*)>()))
            commands.push_back(each->get_name());
        return words("нет команды ", "no command ") + in_quotes(*plain) + hint(*plain, commands);
    }
    if (dashed == extras.end())
        return words("лишний аргумент ", "one argument too many: ") + in_quotes(extras.front());
    const std::string name = dashed->substr(0, dashed->find('='));
    names known;
    for (const CLI::Option* each : options_of(command))
        if (!each->get_positional()) known.push_back(each->get_name());
    return words("нет параметра ", "no option ") + in_quotes(name) + hint(name, known);
}

std::string missing_word(const CLI::App& command) {
    for (const CLI::Option* each : options_of(command))
        if (each->get_required() && each->count() == 0)
            return words("не указано: ", "missing: ") + form_of(*each);
    std::string choice;
    for (const CLI::App* part : parts_of(command))
        if (part->get_require_option_min() > 0)
            for (const CLI::Option* each : part->get_options())
                if (each != part->get_help_ptr()) append_item(choice, each->get_name());
    return words("нужен один из параметров ", "one of these options is needed: ") + choice;
}

std::string words_at_odds(const CLI::App& command, const std::string& otherwise) {
    for (const CLI::Option* each : options_of(command)) {
        if (each->count() == 0) continue;
        for (const CLI::Option* other : each->get_excludes())
            if (other->count() > 0)
                return each->get_name() + words(" не сочетается с ", " does not go with ") +
                       other->get_name();
        for (const CLI::Option* other : each->get_needs())
            if (other->count() == 0)
                return each->get_name() + words(" требует ", " needs ") + other->get_name();
    }
    return otherwise;
}

/// The option whose name the library's own sentence begins with, or contains.
const CLI::Option* option_named_in(const CLI::App& command, const std::string& sentence) {
    for (const CLI::Option* each : options_of(command))
        if (sentence.starts_with(each->get_name() + ':')) return each;
    for (const CLI::Option* each : options_of(command))
        if (sentence.find(each->get_name()) != sentence.npos) return each;
    return nullptr;
}

bool has_a_check(CLI::App& command, const CLI::Option& option) try {
    return command.get_option_no_throw(option.get_name())->get_validator(0) != nullptr;
} catch (const CLI::OptionNotFound&) {
    return false;
}

std::string wrong_value(CLI::App& command, const CLI::ParseError& error) {
    const CLI::Option* option = option_named_in(command, error.what());
    const bool validated = dynamic_cast<const CLI::ValidationError*>(&error);
    if (!option || (validated && !has_a_check(command, *option)))
        return error.what();  // a command's own words
    const std::string name = option->get_positional() ? "" : option->get_name() + ": ";
    const auto& given = option->results();
    if (option->get_type_name().empty()) return name + words("не принимает значения", "takes no value");
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) {
        if (given.size() > static_cast<std::size_t>(option->get_items_expected_max()))
            return name + words("указано больше одного раза", "given more than once");
        return name + words("нужно значение ", "needs a value ") + option->get_type_name();
    }
    std::string values;
    for (const std::string& each : given) append_item(values, in_quotes(each));
    return name + words("не подходит ", "cannot be ") + values + " (" + option->get_type_name() + ')';
}

}  // namespace

std::string usage_line(CLI::App& app, const CLI::ParseError& error) {
    const auto chosen = app.get_subcommands();
    CLI::App& command = chosen.empty() ? app : *chosen.front();
    const bool is_missing = dynamic_cast<const CLI::RequiredError*>(&error);
    const auto unknown = app.remaining(true);
    if (!unknown.empty() && (is_missing || dynamic_cast<const CLI::ExtrasError*>(&error)))
        return unknown_word(app, command, unknown);
    if (is_missing) return missing_word(command);
    if (dynamic_cast<const CLI::ExcludesError*>(&error) || dynamic_cast<const CLI::RequiresError*>(&error))
        return words_at_odds(command, error.what());
    return wrong_value(command, error);
}

}  // namespace oxhost::app
