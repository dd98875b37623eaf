#pragma once
/// New files on their way into the place of old ones.

#include <filesystem>

#include "base/files.h"

namespace oxhost {

/// The folder in which the files for `out` are made, so that to deliver them is to rename them.
std::filesystem::path workshop_for(const std::filesystem::path& out);

/// Moves what the workshop holds into the place of `out`, all of it or none: one file takes the place of the
/// old one at once; of several, the old set goes aside first and comes back when one cannot be moved. Into a
/// stream the file is copied. Without `overwrite` nothing that is there by now is replaced. Throws
/// exchange_error and filesystem_error.
void deliver(const temporary_folder& made, const std::filesystem::path& out, bool overwrite);

}  // namespace oxhost
