#pragma once
/// The land of the world, for the ground of frames.

#include <string>
#include <vector>

#include "map/frame.h"

namespace oxhost::map {

/// What of the land falls into the frame, cut at its edges, as elements of class "land" and "coast". Empty at
/// sea.
std::string land_in(const frame& shown);

/// The land as closed rings of longitude and latitude, cut at the edges of a box between -180 and 180
/// degrees.
std::vector<polyline> land_within(const geographic_extent& box);

}  // namespace oxhost::map
