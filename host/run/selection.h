#pragma once
/// Which scenes a command works on.

#include <string>
#include <vector>

#include "project/project.h"

namespace oxhost::app {

/// The scenes that the plug-in's dialog lists: profiles that have a line, in project order.
std::vector<scene*> listed_scenes(project& in);

/// Scenes by index or caption, each once, in project order. Throws `failure` (nothing_done) for one that
/// is not there, a caption of several scenes, or a scene that is no profile.
std::vector<scene*> select_scenes(project& in, const std::vector<std::string>& wanted);

}  // namespace oxhost::app
