#pragma once
/// What a user asks for - a target, a project - made out of what was written, and how a run ends that cannot
/// go on.

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "base/files.h"
#include "project/project.h"
#include "run/selection.h"

namespace oxhost::run {

enum class trouble {
    unreadable,  ///< a file that is to be read
    refused,     ///< settings that do not work, or an output that cannot be written
    scene,       ///< a line that cannot be brought where it is wanted
};

/// One line for the user.
struct failure : std::runtime_error {
    failure(trouble of_what, const std::string& line) : std::runtime_error(line), kind(of_what) {}
    trouble kind;
};

/// What lines are to be brought into: `EPSG:n` or the bare number, a proj4 text, a .pj4 or .prj file, or
/// `none`.
struct target {
    std::string given;                          ///< as the user spelled it
    std::string proj4;                          ///< accepted by PROJ; empty for `none`
    std::optional<std::filesystem::path> file;  ///< that the text comes from

    bool none() const { return proj4.empty(); }
};

/// Throws `failure`: a file that cannot be read is `unreadable`, anything PROJ refuses `refused`.
target read_target(const std::string& given);

/// A target as a file that a Load button takes: its own, else one made in `folder`. Not for `none`.
std::filesystem::path file_of(const target& wanted, const temporary_folder& folder);

/// Opens a project. Throws `failure`: a file that cannot be read is `unreadable`, one that can only be read
/// but is to be changed `refused`.
std::unique_ptr<project> open_project(const std::filesystem::path& file, open_mode mode);

}  // namespace oxhost::run
