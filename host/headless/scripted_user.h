#pragma once
/// A user who knows beforehand what to do in which dialog. [ui]

#include <deque>
#include <functional>
#include <map>

#include "headless/dialog_hands.h"

namespace oxhost::headless {

class scripted_user final : public shell::dialog_user {
public:
    using act = std::function<void(dialog_hands& in)>;

    /// What to do in every dialog shown through the dialog host of that id. The dialog closes when the act
    /// is over.
    void in_dialog(std::string id, act what) { acts_[std::move(id)] = std::move(what); }
    /// Answer of the next file dialog that has none yet. Without an answer left it is cancelled.
    void answer_file(std::filesystem::path file) { files_.push_back(std::move(file)); }

    /// Throws `impossible` for a dialog that nothing is known about.
    void serve(shell::open_dialog& dialog) override;
    std::optional<std::filesystem::path> choose_file(const shell::file_question& question) override;

private:
    std::map<std::string, act> acts_;
    std::deque<std::filesystem::path> files_;
};

}  // namespace oxhost::headless
