#include "run/projection_dialog.h"

#include "app/command.h"
#include "base/text.h"
#include "run/plug_in_texts.h"
#include "session/journal.h"
#include "shell/host_strings.h"

namespace oxhost::app {

using headless::dialog_hands;
using shell::button_role;
using shell::node_kind;

namespace {

void fail_on_file_error() {
    if (const auto error = journal::instance().take_file_failure())
        throw failure(exit_code::unreadable, *error);
}

}  // namespace

void projection_dialog::open(const std::string& proj4, const std::function<void(dialog_hands&)>& act) {
    user_.in_dialog(plug_in_text::projection_dialog, [&](dialog_hands& in) { act(in); });
    user_.in_dialog(plug_in_text::utility, [&](dialog_hands& in) {
        if (!proj4.empty()) load(in, file_of({proj4, proj4, {}}, folder_));
        in.click(shell::text_of(shell::host_string::projection));
        in.press(button_role::reject);
    });
    host_.run(plug_in_text::utility);
}

std::string projection_dialog::text(dialog_hands& in) {
    const auto file = folder_ / "composed.pj4";
    save(in, file);
    return std::string(trimmed(read_file(file).value_or("")));
}

void projection_dialog::choose_crs(dialog_hands& in, const std::string& identifier) {
    user_.in_dialog(plug_in_text::crs_dialog, [&](dialog_hands& asked) {
        asked.only(node_kind::input).type(identifier);
        const auto buttons = asked.dialog().buttons();
        const bool known = std::ranges::any_of(buttons, [](const shell::dialog_button& b) {
            return b.role == button_role::accept && b.enabled;
        });
        if (!known) throw failure(exit_code::nothing_done, '"' + identifier + "\": no such projection");
        asked.press(button_role::accept);
    });
    in.click("EPSG");
}

void projection_dialog::save(dialog_hands& in, const std::filesystem::path& file) {
    user_.answer_file(file);
    in.click(plug_in_text::save());
    fail_on_file_error();
}

void projection_dialog::load(dialog_hands& in, const std::filesystem::path& file) {
    user_.answer_file(file);
    in.click(plug_in_text::load());
    fail_on_file_error();
}

}  // namespace oxhost::app
