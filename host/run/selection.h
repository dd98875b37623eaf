#pragma once
/// Which scenes of a project a user means.

#include <string>
#include <vector>

#include "project/project.h"

namespace oxhost::run {

/// In project order.
std::vector<scene*> all_scenes(project& opened);
/// The scenes that the plug-in's dialog lists: profiles that have a line, in project order.
std::vector<scene*> listed_scenes(project& opened);

/// What each of `wanted` names, together, each scene once, in project order: a number as `list` prints it, a
/// caption, a range of numbers ("2-5"), or a pattern of captions ("Line*", "?" for one character). The first
/// of these that fits counts, so that an exact caption wins over range and pattern. Throws `failure`
/// (refused) for what names no scene, a caption of several scenes, or a scene named by number or caption that
/// is not listed where `only_listed` are asked for; ranges and patterns pass over those.
std::vector<scene*> select_scenes(project& opened, const std::vector<std::string>& wanted,
                                  bool only_listed = true);

/// Those of `scenes` whose projection is one of `sources`, each as `read_target` takes it; `none` means those
/// without. Throws `failure` (refused) for a source that none of them has.
std::vector<scene*> scenes_in(const std::vector<scene*>& scenes, const std::vector<std::string>& sources);

}  // namespace oxhost::run
