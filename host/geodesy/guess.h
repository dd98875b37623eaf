#pragma once
/// Which coordinate system a line without one may be in: those of the EPSG data set in which it falls into
/// their area of use, best first. [ui]

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/line.h"

namespace oxhost {

struct guess_hints {
    polyline near;                   ///< longitude, latitude of places near which the line may lie
    std::vector<std::string> texts;  ///< projections of lines that belong to it
};

struct system_guess {
    std::string code;  ///< such as "EPSG:28407"
    std::string name;
    std::string area;  ///< the data set's words for its area of use, English
    bool deprecated = false;
    std::string proj4;               ///< as import_crs gives it
    point place;                     ///< longitude, latitude of the line's middle vertex, WGS 84
    std::optional<double> distance;  ///< metres from there to the nearest of the places, if there are any
};

/// At most `count`. Better are: near a place, whole line in the area, little distortion, datum or system of
/// the other lines, a small area, common use; superseded systems come last. Empty for a line without
/// vertices.
std::vector<system_guess> guess_systems(const polyline& line, const guess_hints& hints, std::size_t count);

}  // namespace oxhost
