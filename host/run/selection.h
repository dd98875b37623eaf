#pragma once
/// What a run works on: a project, and which of its scenes.

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "project/project.h"

namespace oxhost::run {

/// Opens a project. Throws `failure`: a file that cannot be read is `unreadable`, one that can only be read
/// but is to be changed `refused`.
std::unique_ptr<project> open_project(const std::filesystem::path& file, open_mode mode);

/// The scenes that the plug-in's dialog lists: profiles that have a line, in project order.
std::vector<scene*> listed_scenes(project& opened);

/// Scenes by index or caption, each once, in project order. Throws `failure` (refused) for one that is not
/// there, a caption of several scenes, or a scene that is no profile.
std::vector<scene*> select_scenes(project& opened, const std::vector<std::string>& wanted);

}  // namespace oxhost::run
