#pragma once
/// Lines that end so close to each other that no text has room between them.

#include <cstddef>
#include <functional>
#include <vector>

#include "base/line.h"

namespace oxhost::map {

struct bundle {
    bool to_the_right;               ///< of the ends stands the column of texts
    std::vector<std::size_t> lines;  ///< from the top of the column down, so that leaders do not cross
    std::vector<point> ends;         ///< theirs, as many
    point outward;                   ///< of length 1: where the lines point to at these ends
};

/// The lines that `chosen` holds for.
bundle part_of(const bundle& whole, const std::function<bool(std::size_t)>& chosen);
/// As many as wanted of the lines that are nearest to the column of one side, for a column there.
bundle outermost(const bundle& whole, std::size_t wanted, bool to_the_right);

/// Both ends of the lines are looked at, so that a line may be in two bundles; of one place, at most so many
/// lines. In the picture's units.
std::vector<bundle> find_bundles(const std::vector<const polyline*>& lines, std::size_t most);

}  // namespace oxhost::map
