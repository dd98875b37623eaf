#pragma once
/// Scenes of a project written to a file of another format. [ui]

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "run/export_plan.h"

namespace oxhost::run {

struct export_wish {
    std::filesystem::path out;          ///< its extension is the format
    std::optional<std::string> target;  ///< as read_target takes it; without, lines keep their projections
    bool overwrite = false;
    /// Told the share done before each scene. What it throws ends the export; the file is then as it was.
    std::function<void(double share)> progress;
};

struct export_result {
    std::vector<std::string> warnings;  ///< what the format cannot hold, what was changed: a line each
    std::string summary;                ///< how many scenes and layers
};

/// Throws `failure`, exchange_error, project_error before anything is replaced.
export_result export_scenes(project& opened, std::vector<scene*> scenes, const export_wish& asked);

}  // namespace oxhost::run
