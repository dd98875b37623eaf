#include <CLI/CLI.hpp>

#include "app/help.h"
#include "base/text.h"

namespace oxhost::app {

namespace {

/// "--yes --no --to": long names, in the order of the help.
std::string options_of(const CLI::App& app) {
    std::string names;
    for (const CLI::Option* each : app.get_options())
        if (!each->get_group().empty())
            for (const std::string& name : each->get_lnames()) append_item(names, "--" + name, " ");
    for (const CLI::App* group : app.get_subcommands(std::function<bool(const CLI::App*)>()))
        if (group->get_name().empty()) append_item(names, options_of(*group), " ");
    return names;
}

/// "ru|en": a value of lower-case words stands for itself, PLACEHOLDERS do not.
bool is_choice(const std::string& value) {
    return value.find('|') != std::string::npos &&
           value.find_first_not_of("abcdefghijklmnopqrstuvwxyz|") == std::string::npos;
}

void add_choices(const CLI::App& app, std::string& cases) {
    for (const CLI::Option* each : app.get_options()) {
        std::string value = each->get_type_name();
        if (each->get_lnames().empty() || !is_choice(value)) continue;
        std::ranges::replace(value, '|', ' ');
        const std::string line = "        --" + each->get_lnames().front() + ") COMPREPLY=($(compgen -W '" +
                                 value + "' -- \"$word\")); return ;;\n";
        if (cases.find(line) == std::string::npos) cases += line;
    }
    for (const CLI::App* each : app.get_subcommands(std::function<bool(const CLI::App*)>()))
        add_choices(*each, cases);
}

}  // namespace

std::string bash_completion(const CLI::App& app) {
    std::string commands, choices, options;
    add_choices(app, choices);
    for (const CLI::App* each : app.get_subcommands(std::function<bool(const CLI::App*)>())) {
        append_item(commands, each->get_name(), " ");
        options += "        " + each->get_name() + ") words='" + options_of(*each) + "' ;;\n";
    }
    return R"(# bash completion for oxhost
_oxhost() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} words=
    case $before in
)" + choices +
           R"(    esac
    case ${COMP_WORDS[1]} in
)" + options +
           "        *) words='" + commands + ' ' + options_of(app) + R"(' ;;
    esac
    if [[ $COMP_CWORD -eq 1 || $word == -* ]]; then
        COMPREPLY=($(compgen -W "$words" -- "$word"))
    else
        compopt -o filenames
        COMPREPLY=($(compgen -f -- "$word"))
    fi
}
complete -F _oxhost oxhost
)";
}

}  // namespace oxhost::app
