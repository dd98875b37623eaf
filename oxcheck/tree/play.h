#pragma once
/// One run of the bundle's utility on the stage, by a user who tries everything.

#include <functional>
#include <vector>

#include "oxcheck/stage/session.h"
#include "oxcheck/tree/element.h"

namespace oxcheck {

/// One thing that a user does to an element.
struct act {
    const element& target;
    std::string what;
    bool accepts = false;  ///< presses the first button at the foot of the dialog
};

/// Acts on every control of a dialog: types, chooses, clicks, edits, opens menus, checks all rows; then
/// presses the buttons at its foot until one closes it.
struct user {
    /// Performs each act, where there is something to do before or after it.
    std::function<void(const act& done, const std::function<void()>& perform)> around = {};

    /// Answers what the dialog host is to answer.
    bool operate(const std::vector<element>& dialog) const;
};

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

private:
    phase now() const;

    session& session_;
    bool applying_ = false;
    std::size_t log_before_ = 0;
    phase refused_in_ = phase::elsewhere;
};

}  // namespace oxcheck
