#pragma once
/// What the EPSG data set, or another authority's, says of a system beside its numbers. [ui]

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language.h"
#include "geodesy/place.h"
#include "geodesy/published_shifts.h"

namespace oxhost {

struct official_system {
    std::string name;
    std::string kind;   ///< in words: projected, geographic, geocentric, vertical ...
    bool maps = false;  ///< a line can be in it
    bool deprecated = false;
    std::string area;  ///< the data set's words, English
    std::optional<geographic_area> bounds;
    std::vector<published_shift> shifts;  ///< of a geographic system: its ways to WGS 84
};

/// Of a code such as "EPSG:4284", of an official name or a definition; nothing when it is unknown.
std::optional<official_system> official(const std::string& identifier, language wanted);

}  // namespace oxhost
