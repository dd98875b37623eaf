#pragma once
/// Longitudes of lines that are drawn beside each other, near the date line too.

#include <vector>

#include "base/line.h"

namespace oxhost::map {

/// The longitudes of a line go on beyond 180 degrees instead of jumping.
void unwrap(polyline& line);

/// Unwraps the lines and turns them by whole circles so that together they are as narrow as may be: the
/// circle is cut in the middle of what is empty, at 180 degrees where that is in the widest gap. Empty lines
/// are left alone.
void gather(const std::vector<polyline*>& lines);

}  // namespace oxhost::map
