#pragma once
/// Lines of files made scenes of a project: all of them, or none. [ui]

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "exchange/exchange.h"

namespace oxhost::run {

struct import_order {
    std::vector<std::filesystem::path> sources;
    std::optional<std::string> target;  ///< projection of all lines, as read_target takes it
    bool not_profile = false;
    std::string layer;  ///< empty for all
    point_columns points;
    /// Told of every scene: the place of its source, and how many came before. What it throws ends the
    /// import.
    std::function<void(std::size_t source, std::size_t scenes)> progress;
};

/// Adds to a project open for writing. Answers what was taken, dropped and changed, a line or more for each
/// source. Throws `failure`; then nothing is kept, as when what the order's functions call throws.
std::vector<std::string> import_into(project& opened, const import_order& asked);
/// The same with the project in a file, which is made when it is not there, and vanishes again on failure.
std::vector<std::string> import_into(const std::filesystem::path& file, const import_order& asked);

}  // namespace oxhost::run
