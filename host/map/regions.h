#pragma once
/// Which lines are shown together: those that lie close to each other, near the date line too.

#include <cstddef>
#include <vector>

#include "base/line.h"

namespace oxhost::map {

/// The longitudes of a line go on beyond 180 degrees instead of jumping.
void unwrap(polyline& line);

/// One line before and after, say: what is turned together.
using body = std::vector<polyline*>;

/// Unwraps the lines and turns them by whole circles so that together they are as narrow as may be: the
/// circle is cut in the middle of what is empty, at 180 degrees where that is in the widest gap. The lines of
/// a body go along with its first one, vertex by vertex where they have as many. Empty lines are left alone.
void gather(std::vector<body> bodies);

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
