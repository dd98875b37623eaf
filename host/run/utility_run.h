#pragma once
/// A utility of a bundle at work on a project: what changes is one run that can be undone. [ui]

#include <string>
#include <vector>

#include "run/outcome.h"
#include "shell/bundle_host.h"

namespace oxhost::run {

/// Runs it, its dialogs included, over the project, which may be null. What was said is in `messages`.
/// Answers what became of the scenes that it lists. Throws bundle_error, and what the user of the dialogs
/// threw.
std::vector<scene_result> run_utility(project* opened, shell::bundle_host& host,
                                      const std::string& utility_id);

}  // namespace oxhost::run
