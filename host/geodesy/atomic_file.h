#pragma once
/// Small text files, replaced as a whole: a killed process leaves the old content or the new.

#include <optional>
#include <string>
#include <string_view>

namespace oxhost {

/// Writes to a temporary neighbour, flushes it to disk and renames it. Throws std::runtime_error that
/// names the file; the old file is then as it was.
void replace_file(const std::string& path, std::string_view content);

/// Nothing when there is no such file. Throws std::runtime_error, naming the file, when it cannot be read
/// or is larger than `limit` bytes.
std::optional<std::string> read_file(const std::string& path, std::size_t limit = 1 << 20);

}  // namespace oxhost
