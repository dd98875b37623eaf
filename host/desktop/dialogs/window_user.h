#pragma once
/// A person before the bundles' dialogs: each is a window over the one it was opened from. [ui]

#include <QDialogButtonBox>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <utility>

#include "shell/dialogs.h"

namespace oxhost::desktop {

class window_user final : public shell::dialog_user {
public:
    /// `over` is what the first dialog stands over; it outlives the user.
    explicit window_user(QWidget* over) : over_(over) {}

    /// Returns when the person has closed the dialog. Its size is that of last time.
    void serve(shell::open_dialog& dialog) override;
    /// Begins in the folder of last time.
    std::optional<std::filesystem::path> choose_file(const shell::file_question& question) override;

    /// The next question for a file has this answer, unseen.
    void answer_file(std::filesystem::path file) { answer_ = std::move(file); }

    /// The window that is on top: parent of messages, too.
    QWidget* top() const { return shown_.empty() ? over_ : shown_.back(); }

    /// Called before a dialog is shown: the host may add buttons of its own.
    std::function<void(shell::open_dialog& dialog, QDialogButtonBox& buttons)> on_opened;

private:
    QWidget* over_;
    std::optional<std::filesystem::path> answer_;
    std::vector<QWidget*> shown_;
};

}  // namespace oxhost::desktop
