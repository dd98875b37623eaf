#pragma once
/// Projects that were opened lately, newest first; those that are gone are left out.

#include <filesystem>
#include <vector>

namespace oxhost::desktop {

std::vector<std::filesystem::path> recent_files();
void remember_recent(const std::filesystem::path& file);

}  // namespace oxhost::desktop
