#pragma once

#include <vector>

#include "map/frame.h"

namespace oxhost::app {

/// Lines that lie close together, to be shown in one frame.
struct map_region {
    geographic_extent bounds;
    std::vector<std::size_t> lines;  ///< their places in what was given
};

/// Groups lines by nearness so that at most `most` groups come out, from west to east. Lines of empty extent
/// belong nowhere.
std::vector<map_region> find_regions(const std::vector<geographic_extent>& lines, std::size_t most);

}  // namespace oxhost::app
