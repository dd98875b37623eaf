#pragma once
/// Messages, questions and progress as windows over the one on top. All that is said is kept in the message
/// area too. The same text said again in one piece of work has one window.

#include <QTimer>

#include "desktop/dialogs/window_user.h"
#include "desktop/document.h"
#include "session/messages.h"

namespace oxhost::desktop {

class window_messages final : public message_policy {
public:
    /// Both outlive it.
    window_messages(document& shown, const window_user& user);

    void show(message_kind kind, const std::string& text) override;
    /// "No" is what Enter answers: the questions are about data.
    std::optional<bool> ask(const std::string& text) override;
    std::unique_ptr<progress_display> open_progress() override;

private:
    class progress;
    void note_down(message_kind kind, const std::string& text);

    document& document_;
    const window_user& user_;
    std::string last_;          ///< shown in a window by the piece of work that is going on
    QTimer work_ended_;         ///< fires when the person can act again
    bool stopped_ = false;      ///< the piece of work that is going on was ended by the person
    std::size_t progress_ = 0;  ///< indicators on display, which let timers through in the midst of work
};

}  // namespace oxhost::desktop
