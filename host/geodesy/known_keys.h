#pragma once
/// Keys of proj4 texts that PROJ reads.

#include <string_view>

namespace oxhost {

/// Of general use, or a parameter of any of PROJ's projections.
bool is_known_key(std::string_view key);

}  // namespace oxhost
