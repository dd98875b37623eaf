#pragma once
/// What a reprojection would do, told before anything is changed: as a dry run tells it. [ui]

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "project/project.h"
#include "run/judgement.h"

namespace oxhost::run {

struct foreseen_scene {
    std::size_t index = 0;
    std::string caption;
    outcome comes_to = outcome::not_attempted;
    std::optional<scene_failure> failure;
    judgement judged;
    std::optional<number_shift> way;  ///< on the map
    std::vector<std::string> warnings;
    // WGS 84 longitude and latitude, where the line has a place:
    std::optional<polyline> before, after;
};

struct foreseen {
    std::vector<foreseen_scene> scenes;  ///< in project order
    std::vector<std::string> warnings;   ///< those of single scenes too
    std::vector<std::string> operations;
    bool will_ask = false;  ///< the plug-in puts a question first, here taken as answered "yes"
    std::string summary;
};

struct preview_order {
    std::vector<std::size_t> scenes;  ///< numbers from 0
    std::string target;               ///< proj4; empty to reset
    std::filesystem::path bundle;
};

/// Runs on a private copy of the project, every scene in spite of failures. May be called while a utility is
/// at work on the project: its messages and its journal stay as they are. `progress` is told the share done.
/// Throws failure, project_error, bundle_error.
foreseen foresee(project& opened, const preview_order& asked,
                 const std::function<void(double)>& progress = {});

}  // namespace oxhost::run
