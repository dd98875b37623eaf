#include "app/help.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <string_view>

#include "app/command.h"
#include "base/display.h"
#include "base/language.h"
#include "base/text.h"

namespace oxhost::app {

namespace {

constexpr std::size_t widest_line = 110;
constexpr std::size_t widest_left_column = 28;
constexpr std::size_t indent = 2;

using entry = help_entry;

/// "--scene INDEX|CAPTION ...", or the placeholder alone of a word without an option's name.
std::string form_of(const CLI::Option& option) {
    std::string form = option.get_positional() ? "" : option.get_name(false, true);
    if (const std::string value = option.get_type_name(); !value.empty()) append_item(form, value, " ");
    if (option.get_expected_max() >= CLI::detail::expected_max_vector_size) form += " ...";
    return form;
}

entry entry_of(const CLI::Option& option) {
    std::string conditions;
    if (option.get_required()) append_item(conditions, words("обязательно", "required"));
    for (const CLI::Option* other : option.get_needs())
        append_item(conditions, words("только с ", "only with ") + other->get_name());
    for (const CLI::Option* other : option.get_excludes())
        append_item(conditions, words("не вместе с ", "not with ") + other->get_name());
    std::string description = option.get_description();
    if (!conditions.empty()) append_item(description, '(' + conditions + ')', " ");
    return {form_of(option), std::move(description)};
}

std::vector<const CLI::Option*> positionals(const CLI::App& app) {
    return app.get_options([](const CLI::Option* each) { return each->get_positional(); });
}

class bilingual_help final : public CLI::FormatterBase {
public:
    std::string make_help(const CLI::App* app, std::string name, CLI::AppFormatMode) const override {
        std::string help = usage(*app, name) + paragraph(app->get_description());
        help += section(words("Аргументы", "Arguments"), help_entries(*app, true));
        help += section(words("Параметры", "Options"), help_entries(*app, false));
        std::vector<entry> commands;
        for (const CLI::App* each : app->get_subcommands(std::function<bool(const CLI::App*)>())) {
            if (each->get_name().empty())  // a group of options
                help += section(each->get_description(), help_entries(*each, false));
            else
                commands.push_back({each->get_name(), each->get_description()});
        }
        help += section(words("Команды", "Commands"), commands);
        if (!app->get_parent() && !app->get_footer().empty()) help += paragraph(app->get_footer());
        return help;
    }

private:
    static std::size_t columns() { return std::min(terminal_columns().value_or(widest_line), widest_line); }

    static std::string usage(const CLI::App& app, const std::string& name) {
        std::string line(words("Использование: ", "Usage: "));
        line += name;
        const bool has_commands =
            std::ranges::any_of(app.get_subcommands(std::function<bool(const CLI::App*)>()),
                                [](const CLI::App* each) { return !each->get_name().empty(); });
        if (has_commands) line += words(" КОМАНДА", " COMMAND");
        for (const CLI::Option* each : positionals(app)) {
            const std::string form = form_of(*each);
            line += each->get_required() ? ' ' + form : " [" + form + ']';
        }
        return line + words(" [ПАРАМЕТРЫ]\n", " [OPTIONS]\n");
    }

    static std::string paragraph(const std::string& text) {
        std::string lines = "\n";
        for (const std::string& line : wrapped(text, columns())) lines += line + '\n';
        return lines;
    }

    static std::string section(std::string_view heading, const std::vector<entry>& entries) {
        if (entries.empty()) return {};
        std::size_t left = 0;
        for (const entry& each : entries)
            if (const auto width = display_width(each.left); width <= widest_left_column)
                left = std::max(left, width);
        const std::size_t column = indent + left + 2;
        std::string lines = '\n' + std::string(heading) + ":\n";
        for (const entry& each : entries) {
            std::string line = std::string(indent, ' ') + each.left;
            if (display_width(each.left) > left) line += '\n';
            const std::size_t room = std::max<std::size_t>(columns(), column + 20) - column;
            for (const std::string& part : wrapped(each.description, room)) {
                lines += (line.ends_with('\n') ? line + std::string(column, ' ') : padded(line, column));
                lines += part + '\n';
                line.clear();
            }
        }
        return lines;
    }
};

}  // namespace

std::vector<help_entry> help_entries(const CLI::App& app, bool positional) {
    std::vector<entry> found;
    for (const CLI::Option* each : app.get_options())
        if (each->get_positional() == positional && !each->get_group().empty() &&
            !(app.get_name().empty() && each == app.get_help_ptr()))
            found.push_back(entry_of(*each));
    return found;
}

void settle_language(int argc, const char* const* argv) {
    constexpr std::string_view option = "--lang";
    for (int i = 1; i < argc; ++i) {
        std::string_view word = argv[i];
        if (!word.starts_with(option)) continue;
        word.remove_prefix(option.size());
        if (word.empty() && i + 1 < argc) choose_language(parse_language(argv[i + 1]));
        if (word.starts_with('=')) choose_language(parse_language(word.substr(1)));
    }
}

std::shared_ptr<CLI::FormatterBase> help_formatter() { return std::make_shared<bilingual_help>(); }

}  // namespace oxhost::app
