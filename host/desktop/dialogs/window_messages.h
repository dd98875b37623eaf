#pragma once
/// Messages, questions and progress as windows over the one on top. All that is said is kept in the message
/// area too.

#include "desktop/dialogs/window_user.h"
#include "desktop/document.h"
#include "session/messages.h"

namespace oxhost::desktop {

class window_messages final : public message_policy {
public:
    /// Both outlive it.
    window_messages(document& shown, const window_user& user) : document_(shown), user_(user) {}

    void show(message_kind kind, const std::string& text) override;
    /// "No" is what Enter answers: the questions are about data.
    std::optional<bool> ask(const std::string& text) override;
    std::unique_ptr<progress_display> open_progress() override;

private:
    void note_down(message_kind kind, const std::string& text);

    document& document_;
    const window_user& user_;
};

}  // namespace oxhost::desktop
