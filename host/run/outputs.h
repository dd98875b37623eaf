#pragma once
/// Files that a job writes: nothing that exists is replaced unasked, a project never.

#include <filesystem>

namespace oxhost::run {

/// Before any work whose result the file takes. Throws `failure` (refused) where the file cannot be written,
/// exists and is not to be overwritten, or is a project, also behind a link, or a project's log. What is
/// written into a stream replaces nothing.
void check_output(const std::filesystem::path& file, bool overwrite);

}  // namespace oxhost::run
