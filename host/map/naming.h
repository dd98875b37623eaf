#pragma once
/// The names of the lines of one frame: captions, and the number of a line whose caption finds no room;
/// numbers alone where that leaves lines without either. The list beside the map explains them.

#include <cstddef>
#include <string>
#include <vector>

#include "map/svg.h"
#include "map/taken_room.h"

namespace oxhost::map {

struct named_line {
    std::string caption, number;  ///< both empty for a line that is to have neither
    polyline path;                ///< in the picture's units, not empty
};

struct names {
    std::string elements;
    std::size_t without_room = 0;  ///< lines that bear neither caption nor number
};

/// `reserved` stays free.
names name_lines(const rectangle& within, const rectangle& reserved, const std::vector<named_line>& lines);

}  // namespace oxhost::map
