#pragma once
/// A user who knows beforehand what to do in which dialog. [ui]

#include <deque>
#include <functional>
#include <map>

#include "headless/dialog_hands.h"

namespace oxhost::headless {

class scripted_user final : public shell::dialog_user {
public:
    using act = std::function<void(dialog_hands& hands)>;

    /// What to do in every dialog shown through the dialog host of that id. The dialog closes when the act
    /// is over.
    void in_dialog(std::string id, act what) { acts_[std::move(id)] = std::move(what); }
    /// Answer of the next file dialog that has none yet. Without an answer left it is cancelled.
    void answer_file(std::filesystem::path file) { files_.push_back(std::move(file)); }

    /// Throws `impossible` for a dialog that nothing is known about.
    void serve(shell::open_dialog& dialog) override {
        const auto found = acts_.find(dialog.id());
        if (found == acts_.end())
            throw impossible("nobody knows what to do in the dialog \"" + dialog.caption() + "\" (" +
                             dialog.id() + ')');
        dialog_hands hands(dialog);
        found->second(hands);
    }
    std::optional<std::filesystem::path> choose_file(const shell::file_question&) override {
        if (files_.empty()) return std::nullopt;
        auto file = std::move(files_.front());
        files_.pop_front();
        return file;
    }

private:
    std::map<std::string, act> acts_;
    std::deque<std::filesystem::path> files_;
};

}  // namespace oxhost::headless
