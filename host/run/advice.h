#pragma once
/// What a user should know before a reprojection.

#include <string>
#include <vector>

#include "run/outcome.h"

namespace oxhost::run {

/// Warnings about the scenes' projections and the target, once each with the scene that it was found at.
/// Of the scenes of one projection only those that reach farthest are looked at: what is wrong with a
/// text is wrong for all of them, and lengths suffer most at the edges.
std::vector<std::string> advise(project& opened, const std::vector<scene_result>& scenes,
                                const std::string& target);

}  // namespace oxhost::run
