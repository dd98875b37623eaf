#pragma once
/// The projection that a run brings lines into, as a user names it: `EPSG:n`, a proj4 text, a .pj4 or .prj
/// file, or `none`.

#include <filesystem>
#include <optional>
#include <string>

#include "base/files.h"

namespace oxhost::run {

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

}  // namespace oxhost::run
