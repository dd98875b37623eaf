#pragma once
/// Which lines are shown together: those that lie close to each other, in one frame.

#include <cstddef>
#include <vector>

#include "base/line.h"

namespace oxhost::map {

/// Degrees; east may pass 180 where lines cross the date line.
using geographic_extent = extent;

struct region {
    geographic_extent bounds;
    std::vector<std::size_t> lines;  ///< their places in what was given
};

/// Groups lines by nearness so that at most `most` groups come out, from west to east, none over another.
/// Lines of empty extent belong nowhere.
std::vector<region> find_regions(const std::vector<geographic_extent>& lines, std::size_t most);

}  // namespace oxhost::map
