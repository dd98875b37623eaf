#pragma once
/// Eyes and hands of a user in one dialog: things are found by what a person sees of them, or by the id
/// of a tool. Only what is shown can be found. [ui]
///
/// Every failure is an `impossible`, one line that says what was not found, or refused, and what there is.

#include <span>
#include <stdexcept>
#include <string_view>

#include "shell/dialogs.h"

namespace oxhost::headless {

struct impossible : std::runtime_error {
    using runtime_error::runtime_error;
};

class dialog_hands {
public:
    /// `dialog` outlives the hands.
    explicit dialog_hands(shell::open_dialog& dialog) : dialog_(dialog) {}

    shell::open_dialog& dialog() { return dialog_; }

    /// The element of that kind and name; "Group/Name" where the name alone fits several.
    shell::node& find(shell::node_kind kind, std::string_view name);
    /// The input, number or choice of that name.
    shell::node& control(std::string_view name);
    /// The one element of that kind.
    shell::node& only(shell::node_kind kind);
    shell::node& tool(std::string_view id);
    /// Those of a kind in the group of that caption, in reading order.
    std::vector<shell::node*> all_in_group(shell::node_kind kind, std::string_view group);
    /// The one button with a menu.
    shell::node& menu_button();

    void click(std::string_view button);
    void click_tool(std::string_view id);
    void type(std::string_view input, std::string_view text);
    void enter(std::string_view number, double value);
    void choose(std::string_view choice, std::string_view item);
    /// Types, enters or chooses, as the control's kind is: an item by its caption or a beginning that only
    /// one has. A number has a point for its decimals.
    void set(std::string_view control, std::string_view value);

    /// Captions of a button's menu, which closes again.
    std::vector<std::string> menu_entries(shell::node& button);
    void choose_entry(shell::node& button, std::size_t entry);

    /// Presses the standard button; answers whether the dialog closes, and then its user must leave it.
    bool press(shell::button_role role);

private:
    void change(shell::node& control, std::string_view value);

    shell::open_dialog& dialog_;
};

/// A dialog as it is shown, as text: a line for each control with its caption, value and choices, groups
/// indented under theirs.
std::string dialog_text(shell::open_dialog& dialog);

/// Sets the check boxes of these rows.
void check_rows(shell::table_model& table, std::span<const std::uint32_t> rows);

}  // namespace oxhost::headless
