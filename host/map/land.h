#pragma once
/// The land of the world, for the ground of frames.

#include <string>

#include "map/frame.h"

namespace oxhost::map {

/// What of the land falls into the frame, cut at its edges, as elements of class "land" and "coast". Empty at
/// sea.
std::string land_in(const frame& shown);

}  // namespace oxhost::map
