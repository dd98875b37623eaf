#include "run/reprojection_utility.h"

#include <algorithm>

#include "run/failure.h"
#include "run/plug_in_texts.h"
#include "session/journal.h"

namespace oxhost::run {

namespace {

using headless::dialog_hands;
using shell::button_role;

void set_target(dialog_hands& hands, headless::scripted_user& user, const target& into,
                const temporary_folder& folder) {
    if (into.none()) {
        shell::node& button = hands.menu_button();
        const std::size_t entries = hands.menu_entries(button).size();
        return hands.choose_entry(button, entries - 1);  // the last one is always "not defined"
    }
    user.answer_file(file_of(into, folder));
    hands.click(plug_in_text::load());
    if (const auto error = journal::instance().take_file_failure())
        throw failure(trouble::unreadable, *error);
}

/// The rows of the table are the listed scenes; both are in project order.
void check_scenes(dialog_hands& hands, const std::vector<scene*>& listed, const std::vector<scene*>& wanted) {
    shell::table_model& table = *hands.only(shell::node_kind::outline).rows();
    if (table.row_count() != listed.size())
        throw headless::impossible("the dialog lists " + std::to_string(table.row_count()) + " scenes, not " +
                                   std::to_string(listed.size()));
    if (wanted.size() == listed.size()) return hands.click_tool(plug_in_text::select_all_tool);
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

void reprojection_utility::run(const target& into, const std::vector<scene*>& listed,
                               std::vector<scene*> wanted,
                               const std::function<std::vector<scene*>()>& again) {
    const temporary_folder folder;
    user_.in_dialog(plug_in_text::utility, [&](dialog_hands& hands) {
        set_target(hands, user_, into, folder);
        for (; !wanted.empty(); wanted = again()) {
            check_scenes(hands, listed, wanted);
            if (hands.press(button_role::accept)) return;
        }
        hands.press(button_role::reject);
    });
    host_.run(plug_in_text::utility);
}

}  // namespace oxhost::run
