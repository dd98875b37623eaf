#include "base/language.h"

#include <cstdlib>

namespace oxhost {
namespace {

std::optional<language>& choice() {
    static std::optional<language> chosen;
    return chosen;
}

}  // namespace

std::optional<language> parse_language(std::string_view code) {
    if (code == "ru") return language::russian;
    if (code == "en") return language::english;
    return {};
}

language environment_language() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (!value || !*value) continue;
        const std::string_view locale(value);
        const bool russian =
            locale.starts_with("ru") && (locale.size() == 2 || locale[2] == '_' || locale[2] == '.');
        return russian ? language::russian : language::english;
    }
    return language::english;
}

language current_language() { return choice().value_or(environment_language()); }

void choose_language(std::optional<language> chosen) { choice() = chosen; }

}  // namespace oxhost
