#pragma once
/// The process in which one check runs, seen from both sides.

#include <chrono>

#include "oxcheck/check.h"

namespace oxcheck {

/// First argument of a child; then come the check's name, the bundle and the folder below.
inline constexpr const char* child_option = "--child";

/// The parent's side: runs the check in a process and folder of its own. One that dies, hangs or says nothing
/// has failed; `limit` is the processor time that it may take, and how long it may stand still.
outcome run_in_child(const check& what, const std::filesystem::path& bundle, std::chrono::milliseconds limit);

/// The child's side; the answer is left in `folder`. Returns only when there is no such check.
int run_as_child(const std::string& name, const std::filesystem::path& bundle,
                 const std::filesystem::path& folder);

}  // namespace oxcheck
