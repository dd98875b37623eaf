#pragma once
/// Files that a command writes: checked before it changes anything, replaced as a whole at the end.

#include <filesystem>
#include <string_view>

namespace oxhost::app {

/// Throws `failure` (nothing_done), naming the file, when it could not be made or replaced.
void check_writable(const std::filesystem::path& file);

/// A file that is no ordinary one, such as /dev/stdout, is written into instead of being replaced.
void write_output(const std::filesystem::path& file, std::string_view content);

}  // namespace oxhost::app
