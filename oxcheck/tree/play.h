#pragma once
/// One run of the bundle's utility on the stage, by a user who tries everything.

#include <functional>
#include <vector>

#include "oxcheck/stage/session.h"
#include "oxcheck/tree/element.h"

namespace oxcheck {

/// Where in the user's work the host is when something happens.
enum class phase {
    elsewhere,  ///< in a dialog, not in the run over the scenes
    before,     ///< apply was pressed, no progress shown yet
    within,     ///< progress is shown
    after,      ///< progress was closed
};

class play {
public:
    explicit play(session& started) : session_(started) {}

    /// Called with every dialog's content, before the user acts on it.
    std::function<void(const std::vector<element>&, int depth)> on_dialog;

    /// Runs the utility until its dialog is closed.
    void run();

    /// Of the call that the host refused.
    phase refused_in() const { return refused_in_; }
    bool applied() const { return applied_; }

private:
    phase now() const;

    session& session_;
    bool applying_ = false;
    bool applied_ = false;
    std::size_t log_before_ = 0;
    phase refused_in_ = phase::elsewhere;
};

}  // namespace oxcheck
