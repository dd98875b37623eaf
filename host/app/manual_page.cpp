#include <CLI/CLI.hpp>

#include "app/help.h"
#include "base/language.h"

namespace oxhost::app {

namespace {

/// Text as roff takes it: no line begins with a control character, no backslash and no hyphen is read as
/// anything else.
std::string escaped(const std::string& text) {
    std::string result = text.starts_with('.') || text.starts_with('\'') ? "\\&" : "";
    for (const char c : text) {
        if (c == '\\')
            result += "\\e";
        else if (c == '-')
            result += "\\-";
        else
            result += c;
    }
    return result;
}

std::string paragraph(const std::string& head, const std::string& text) {
    return ".TP\n.B " + escaped(head) + '\n' + escaped(text) + '\n';
}

std::string section(const std::string& heading) { return ".SH \"" + heading + "\"\n"; }

std::vector<const CLI::App*> parts(const CLI::App& app, bool with_name) {
    auto found = app.get_subcommands(std::function<bool(const CLI::App*)>());
    std::erase_if(found, [&](const CLI::App* each) { return each->get_name().empty() == with_name; });
    return found;
}

std::string described(const CLI::App& command) {
    std::string text;
    for (const bool positional : {true, false})
        for (const help_entry& each : help_entries(command, positional))
            if (!each.left.starts_with("-h,")) text += paragraph(each.left, each.description);
    for (const CLI::App* group : parts(command, false)) text += described(*group);
    return text;
}

}  // namespace

std::string manual_page(const CLI::App& app) {
    std::string text = ".TH OXHOST 1 \"\" \"oxhost " OXHOST_VERSION "\"\n";
    text += section(words("НАЗВАНИЕ", "NAME")) + "oxhost \\- " + escaped(app.get_description()) + '\n';
    text += section(words("СИНТАКСИС", "SYNOPSIS")) + ".B oxhost\n" +
            words("КОМАНДА [ПАРАМЕТРЫ]", "COMMAND [OPTIONS]") + '\n';
    text += section(words("ПАРАМЕТРЫ", "OPTIONS")) + described(app);
    text += section(words("КОМАНДЫ", "COMMANDS"));
    for (const CLI::App* command : parts(app, true))
        text += ".SS \"oxhost " + command->get_name() + "\"\n" + escaped(command->get_description()) + '\n' +
                described(*command);
    text += section(words("КОДЫ ЗАВЕРШЕНИЯ", "EXIT STATUS")) + escaped(app.get_footer()) + '\n';
    text +=
        section(words("ПРИМЕР", "EXAMPLE")) +
        ".nf\noxhost import sections.gpkg lines.geojson\noxhost reproject sections.gpkg \\-\\-to EPSG:32640 "
        "\\-\\-all \\-\\-yes \\-\\-report run.json\noxhost undo sections.gpkg\n.fi\n";
    return text + section(words("СМОТРИ ТАКЖЕ", "SEE ALSO")) + "cs2cs(1), ogr2ogr(1), parallel(1)\n";
}

}  // namespace oxhost::app
