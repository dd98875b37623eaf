#pragma once
/// One reprojection, from the target to what became of each scene: for the command line and for windows.
/// Messages and questions of the plug-in go through `messages`, whose policy the caller has chosen. [ui]
///
///     reprojection work(wanted);        // all that can be found wrong is found here
///     show(work.warnings());
///     work.perform();
///     work.roll_back_if_failed();
///     tell(work.told());
///     work.close();

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "run/outcome.h"
#include "run/plug_in.h"
#include "run/request.h"

namespace oxhost::run {

enum class on_error { stop, skip, rollback };

/// What is to be done.
struct order {
    std::filesystem::path project;
    std::string target;                              ///< as read_target takes it
    std::optional<std::vector<std::string>> scenes;  ///< as select_scenes takes them; nothing for all listed
    std::vector<std::string> sources;                ///< only these projections; empty for any
    bool dry_run = false;                            ///< do it all, but leave the project as it is
    on_error policy = on_error::stop;
    bool keep_lines = false;  ///< the record is to have the lines before and after
    std::filesystem::path bundle;
};

/// All that reports and maps tell of.
struct record {
    const order& wanted;
    const target& goal;
    const std::vector<std::string>& warnings;
    const std::vector<scene_result>& results;
    // As many as results, when lines are kept:
    const std::vector<polyline>& before;  ///< in their source projections
    std::vector<polyline> after;          ///< in the projections that the scenes have now
};

/// What a user should know beforehand: warnings about the scenes' projections and the target, once each with
/// the scene that it was found at. Of the scenes of one projection only those that reach farthest are looked
/// at: what is wrong with a text is wrong for all of them, and lengths suffer most at the edges.
std::vector<std::string> advise(project& opened, const std::vector<scene_result>& scenes,
                                const std::string& target);

class reprojection {
public:
    /// Nothing is changed yet. Throws failure, project_error, bundle_error.
    explicit reprojection(order wanted);

    /// As `advise` gives them.
    const std::vector<std::string>& warnings() const { return warnings_; }
    /// Drives the plug-in until the order's policy is content.
    void perform();
    /// Puts back what was changed, if a scene failed and the policy wants that.
    void roll_back_if_failed();
    const std::vector<scene_result>& results() const { return results_; }
    record told();  ///< lent from this
    void close();   ///< the project; throws project_error when its changes stay in its log

private:
    std::vector<polyline> kept_lines();

    order order_;
    target goal_;
    std::unique_ptr<project> project_;
    std::vector<scene*> scenes_;
    reprojection_utility utility_;
    std::vector<scene_result> results_;
    std::vector<std::string> warnings_;
    std::vector<polyline> before_;
    std::vector<scene_state> states_;  ///< kept for a rollback
};

}  // namespace oxhost::run
