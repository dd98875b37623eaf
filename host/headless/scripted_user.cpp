#include "headless/scripted_user.h"

namespace oxhost::headless {

void scripted_user::serve(shell::open_dialog& dialog) {
    const auto found = acts_.find(dialog.id());
    if (found == acts_.end())
        throw impossible("nobody knows what to do in the dialog \"" + dialog.caption() + "\" (" +
                         dialog.id() + ')');
    dialog_hands hands(dialog);
    found->second(hands);
}

std::optional<std::filesystem::path> scripted_user::choose_file(const shell::file_question&) {
    if (files_.empty()) return std::nullopt;
    auto file = std::move(files_.front());
    files_.pop_front();
    return file;
}

}  // namespace oxhost::headless
