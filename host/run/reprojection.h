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

#include "geodesy/reprojector.h"
#include "run/lookahead.h"
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
    bool keep_lines = false;   ///< the record is to have the lines before and after
    reprojection_rules rules;  ///< for every line of this process from then on
    bool no_undo = false;  ///< keep nothing by which the run could be undone, nor what earlier runs have kept
    unsigned threads = all_threads();  ///< that transform lines; the results are those of one
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

/// "211 of 222 lines are stretched by more than 1 %; the worst, ..., by 143 %": what the target does to
/// lengths, over all scenes that are to be reprojected. Nothing when no line suffers as much.
std::optional<std::string> advise_on_lengths(project& opened, const std::vector<scene_result>& scenes,
                                             const std::string& target);

class reprojection {
public:
    /// Nothing is changed yet. Works on `opened`, a scratch copy, where one is given: the order's project is
    /// then only a name. Throws failure, project_error, bundle_error.
    explicit reprojection(order wanted, std::unique_ptr<project> opened = {});

    /// As `advise` gives them.
    const std::vector<std::string>& warnings() const { return warnings_; }
    /// For each source projection one line: operation and accuracy, a better one that lacks only a grid, and
    /// what the texts cannot express. Before `perform`; of the first few, since looking takes time.
    std::vector<std::string> operations();
    /// Drives the plug-in until the order's policy is content, or a signal ends it after the scene in hand.
    /// Failures are told when they have happened.
    void perform(const failure_listener& tell = {});
    /// Did a signal keep the run from scenes? They are "not attempted".
    bool interrupted() const;
    /// Puts back what was changed, if a scene failed or the run was interrupted and the policy wants that.
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
};

}  // namespace oxhost::run
