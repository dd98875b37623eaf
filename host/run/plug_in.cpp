#include "run/plug_in.h"

#include <algorithm>

#include "base/text.h"
#include "run/plug_in_texts.h"
#include "session/journal.h"
#include "shell/host_strings.h"

namespace oxhost::run {

using headless::dialog_hands;
using shell::button_role;
using shell::node_kind;

namespace {

/// After a button that reads or writes a file.
void fail_on_file_error() {
    if (const auto error = journal::instance().take_file_failure())
        throw failure(trouble::unreadable, *error);
}

void set_target(dialog_hands& hands, headless::scripted_user& user, const target& goal,
                const temporary_folder& folder) {
    if (goal.none()) {
        shell::node& button = hands.menu_button();
        const std::size_t entries = hands.menu_entries(button).size();
        return hands.choose_entry(button, entries - 1);  // the last one is always "not defined"
    }
    user.answer_file(file_of(goal, folder));
    hands.click(plug_in_text::load());
    fail_on_file_error();
}

/// The rows of the table are the listed scenes; both are in project order.
void check_scenes(dialog_hands& hands, const std::vector<scene*>& listed, const std::vector<scene*>& wanted) {
    shell::table_model& table = *hands.only(node_kind::outline).rows();
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

void reprojection_utility::run(const target& goal, const std::vector<scene*>& listed,
                               std::vector<scene*> wanted,
                               const std::function<std::vector<scene*>()>& again) {
    const temporary_folder folder;
    user_.in_dialog(plug_in_text::utility, [&](dialog_hands& hands) {
        set_target(hands, user_, goal, folder);
        for (; !wanted.empty(); wanted = again()) {
            check_scenes(hands, listed, wanted);
            if (hands.press(button_role::accept)) return;
        }
        hands.press(button_role::reject);
    });
    host_.run(plug_in_text::utility);
}

std::string target_of(shell::open_dialog& utility,
                      const std::function<void(const std::filesystem::path&)>& answer_file) {
    const temporary_folder folder;
    const auto file = folder / "target.pj4";
    answer_file(file);
    dialog_hands(utility).click(plug_in_text::save());
    fail_on_file_error();
    return std::string(trimmed(read_file(file).value_or("")));
}

void prepare(shell::open_dialog& utility, project& opened, const std::vector<std::size_t>& scenes,
             const std::string& proj4, const std::function<void(const std::filesystem::path&)>& answer_file) {
    const temporary_folder folder;
    dialog_hands hands(utility);
    answer_file(file_of(read_target(proj4), folder));
    hands.click(plug_in_text::load());
    fail_on_file_error();
    std::vector<scene*> wanted;
    for (const std::size_t each : scenes) wanted.push_back(opened.at(each));
    check_scenes(hands, listed_scenes(opened), wanted);
}

std::vector<std::size_t> checked_scenes(shell::open_dialog& utility, project& opened) {
    shell::table_model& table = *dialog_hands(utility).only(node_kind::outline).rows();
    const auto listed = listed_scenes(opened);
    if (table.row_count() != listed.size())
        throw headless::impossible("the dialog lists " + std::to_string(table.row_count()) + " scenes, not " +
                                   std::to_string(listed.size()));
    std::vector<std::size_t> checked;
    for (std::uint32_t row = 0; row < listed.size(); ++row)
        if (table.checked(row)) checked.push_back(listed[row]->index);
    return checked;
}

std::filesystem::path catalogue_folder() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "prj_def";
}

projection_dialog::projection_dialog(const std::filesystem::path& bundle) : host_(bundle, user_) {
    for (const char* table : {"pj_ellps.dbf", "pj_datum.dbf", "pj_proj1.dbf", "pj_proj2.dbf"}) {
        const auto file = catalogue_folder() / table;
        if (std::error_code ignored; !std::filesystem::is_regular_file(file, ignored))
            throw failure(
                trouble::unreadable,
                file.string() + words(": нет каталога проекций", ": the projection catalogue is missing"));
    }
}

void projection_dialog::open(const std::string& proj4, const std::function<void(dialog_hands&)>& act) {
    user_.in_dialog(plug_in_text::projection_dialog, [&](dialog_hands& hands) { act(hands); });
    user_.in_dialog(plug_in_text::utility, [&](dialog_hands& hands) {
        if (!proj4.empty()) load(hands, file_of({proj4, proj4, {}}, folder_));
        hands.click(shell::text_of(shell::host_string::projection));
        hands.press(button_role::reject);
    });
    host_.run(plug_in_text::utility);
}

std::string projection_dialog::text(dialog_hands& hands) {
    const auto file = folder_ / "composed.pj4";
    save(hands, file);
    return std::string(trimmed(read_file(file).value_or("")));
}

void projection_dialog::choose_crs(dialog_hands& hands, const std::string& identifier) {
    user_.in_dialog(plug_in_text::crs_dialog, [&](dialog_hands& asked) {
        asked.only(node_kind::input).type(identifier);
        const auto buttons = asked.dialog().buttons();
        const bool known = std::ranges::any_of(buttons, [](const shell::dialog_button& button) {
            return button.role == button_role::accept && button.enabled;
        });
        if (!known)
            throw failure(trouble::refused,
                          '"' + identifier + '"' + words(": такой проекции нет", ": no such projection"));
        asked.press(button_role::accept);
    });
    hands.click(plug_in_text::epsg());
}

void projection_dialog::take_favourite(dialog_hands& hands, std::uint32_t number) {
    shell::table_model& favourites = *hands.only(node_kind::outline).rows();
    if (number == 0 || number > favourites.row_count())
        throw failure(trouble::refused, words("нет избранной проекции ", "no favourite ") +
                                            std::to_string(number) + words(", всего их ", " among the ") +
                                            std::to_string(favourites.row_count()));
    favourites.make_current(number - 1);
}

void projection_dialog::save(dialog_hands& hands, const std::filesystem::path& file) {
    user_.answer_file(file);
    hands.click(plug_in_text::save());
    fail_on_file_error();
}

void projection_dialog::load(dialog_hands& hands, const std::filesystem::path& file) {
    user_.answer_file(file);
    hands.click(plug_in_text::load());
    fail_on_file_error();
}

}  // namespace oxhost::run
