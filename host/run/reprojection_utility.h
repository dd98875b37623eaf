#pragma once
/// The plug-in's reprojection utility, worked as a person at its dialog would.

#include <filesystem>
#include <functional>
#include <vector>

#include "headless/scripted_user.h"
#include "project/project.h"
#include "run/target.h"
#include "shell/bundle_host.h"

namespace oxhost::run {

/// The plug-in, loaded, with the user who works it.
class reprojection_utility {
public:
    /// Throws bundle_error.
    explicit reprojection_utility(const std::filesystem::path& bundle) : host_(bundle, user_) {}

    /// Opens the utility's dialog over the current project, sets the target, checks the scenes' rows and
    /// presses apply; then checks and applies what `again` answers, until that is nothing, and closes the
    /// dialog. Messages and questions go through `messages`, changes to scenes through `journal`.
    /// `listed` are the scenes that the dialog must show, in its order.
    void run(const target& into, const std::vector<scene*>& listed, std::vector<scene*> wanted,
             const std::function<std::vector<scene*>()>& again);

private:
    headless::scripted_user user_;
    shell::bundle_host host_;
};

}  // namespace oxhost::run
