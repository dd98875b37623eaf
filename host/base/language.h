#pragma once
/// The languages that the host speaks.

#include <string_view>

namespace oxhost {

enum class language { russian, english };

/// The one of two texts that is in the language.
inline std::string_view text_in(language wanted, std::string_view russian, std::string_view english) {
    return wanted == language::russian ? russian : english;
}

}  // namespace oxhost
