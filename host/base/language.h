#pragma once
/// The language in which the host and its modules speak to the user; one per process.

#include <optional>
#include <string>
#include <string_view>

namespace oxhost {

enum class language { russian, english };

/// The one of two texts that is in the language.
inline std::string_view text_in(language wanted, std::string_view russian, std::string_view english) {
    return wanted == language::russian ? russian : english;
}

/// "ru" or "en", as the command line spells them.
std::optional<language> parse_language(std::string_view code);

/// What the environment asks for: Russian when the first set one of LC_ALL, LC_MESSAGES, LANG names a
/// Russian locale, English otherwise.
language environment_language();

/// The chosen language, else the environment's.
language current_language();
/// Nothing goes back to the environment's.
void choose_language(std::optional<language> chosen);

/// The one of two texts that the user reads.
inline std::string_view in_language(std::string_view russian, std::string_view english) {
    return text_in(current_language(), russian, english);
}

/// A text for the user that is in the language of the moment when it is taken as one.
struct bilingual {
    std::string_view russian;
    std::string_view english;

    operator std::string() const { return std::string(in_language(russian, english)); }
    friend std::string operator+(std::string left, const bilingual& right) {
        return left += in_language(right.russian, right.english);
    }
    friend std::string operator+(const bilingual& left, std::string_view right) {
        return std::string(left).append(right);
    }
};

}  // namespace oxhost
