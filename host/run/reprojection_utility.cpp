#include "run/reprojection_utility.h"

#include <algorithm>

#include "app/command.h"
#include "run/plug_in_texts.h"
#include "session/journal.h"

namespace oxhost::app {

namespace {

using headless::dialog_hands;
using shell::button_role;
using shell::node_kind;

void set_target(dialog_hands& in, headless::scripted_user& user, const target& to,
                const temporary_folder& folder) {
    if (to.none()) {
        shell::node& button = in.menu_button();
        const std::size_t entries = in.menu_entries(button).size();
        return in.choose_entry(button, entries - 1);  // the last one is always "not defined"
    }
    user.answer_file(file_of(to, folder));
    in.click(plug_in_text::load());
    if (const auto error = journal::instance().take_file_failure())
        throw failure(exit_code::unreadable, *error);
}

/// The rows of the table are the listed scenes; both are in project order.
void check_scenes(dialog_hands& in, const std::vector<scene*>& listed, const std::vector<scene*>& wanted) {
    shell::table_model& table = *in.only(node_kind::outline).rows();
    if (table.row_count() != listed.size())
        throw headless::impossible("the dialog lists " + std::to_string(table.row_count()) + " scenes, not " +
                                   std::to_string(listed.size()));
    if (wanted.size() == listed.size()) return in.click_tool(plug_in_text::select_all_tool);
    const std::size_t name = table.column_of(plug_in_text::name_column);
    std::vector<std::uint32_t> rows;
    for (const scene* each : wanted) {
        const auto place = std::ranges::lower_bound(listed, each->index, {}, &scene::index);
        rows.push_back(static_cast<std::uint32_t>(place - listed.begin()));
        if (table.text(rows.back(), name) != each->caption)
            throw headless::impossible("the dialog lists another scene in place of " + name_of(*each));
    }
    headless::check_rows(table, rows);
}

}  // namespace

reprojection_utility::reprojection_utility(const std::filesystem::path& bundle) : host_(bundle, user_) {}

void reprojection_utility::run(const target& to, const std::vector<scene*>& listed,
                               std::vector<scene*> wanted,
                               const std::function<std::vector<scene*>()>& again) {
    const temporary_folder folder;
    user_.in_dialog(plug_in_text::utility, [&](dialog_hands& in) {
        set_target(in, user_, to, folder);
        for (; !wanted.empty(); wanted = again()) {
            check_scenes(in, listed, wanted);
            if (in.press(button_role::accept)) return;
        }
        in.press(button_role::reject);
    });
    host_.run(plug_in_text::utility);
}

}  // namespace oxhost::app
