#pragma once
/// Words for projections, parameters, ellipsoids and units, in both languages.

#include <span>
#include <string>
#include <string_view>

#include "base/language.h"

namespace oxhost {

struct term {
    std::string_view key;  ///< as proj4 spells it
    std::string_view english;
    std::string_view russian;
};

inline std::string_view word(const term& known, language wanted) {
    return wanted == language::russian ? known.russian : known.english;
}

/// Null for a key that has no words here.
const term* projection_term(std::string_view key);
const term* ellipsoid_term(std::string_view key);
const term* unit_term(std::string_view key);

/// Parameters in the order in which a description lists them.
struct parameter_term {
    term words;
    bool angle;   ///< degrees, else a plain number or `length`
    bool length;  ///< metres
};
std::span<const parameter_term> parameter_terms();

/// The name in the wanted language, else PROJ's own English name, else the key.
std::string projection_name(std::string_view key, language wanted);

}  // namespace oxhost
