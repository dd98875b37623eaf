#pragma once
/// Whether a file is a project, asked before something else is written in its place.

#include <filesystem>

namespace oxhost {

/// Whether the file, or the database whose log it is by its name, holds scenes. Links are followed; what is
/// no database, or no ordinary file, is no project. Leaves the file alone, and the locks of a project that
/// this process has open. Throws project_error where that cannot be told: a damaged database, one in use.
bool is_project(const std::filesystem::path& file);

}  // namespace oxhost
