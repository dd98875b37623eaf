#include "headless/dialog_hands.h"

#include <algorithm>
#include <functional>

#include "base/language.h"
#include "base/numbers.h"

namespace oxhost::headless {

using shell::node;
using shell::node_kind;

namespace {

std::string in_quotes(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string joined(const std::vector<std::string>& names) {
    if (names.empty()) return words("ничего", "nothing");
    std::string all;
    for (const std::string& name : names) all += (all.empty() ? "" : ", ") + in_quotes(name);
    return all;
}

bool is_control(const node& control) {
    return control.kind() == node_kind::input || control.kind() == node_kind::floating_input ||
           control.kind() == node_kind::dropdown;
}

/// Every shown node that `wanted` accepts, in reading order.
void collect(node& root, const std::function<bool(node&)>& wanted, std::vector<node*>& found) {
    if (wanted(root)) found.push_back(&root);
    for (const auto& child : root.children())
        if (child->shown()) collect(*child, wanted, found);
}

std::vector<node*> all(shell::open_dialog& dialog, const std::function<bool(node&)>& wanted) {
    std::vector<node*> found;
    collect(dialog.root(), wanted, found);
    return found;
}

bool stands_in_group(node& inner, std::string_view caption) {
    for (node* up = inner.parent(); up; up = up->parent())
        if (up->kind() == node_kind::groupbox && up->state().caption == caption) return true;
    return false;
}

bool is_called(node& asked, std::string_view name) {
    if (asked.name() == name) return true;
    const auto slash = name.find('/');
    return slash != name.npos && asked.name() == name.substr(slash + 1) &&
           stands_in_group(asked, name.substr(0, slash));
}

/// The one of `there` that has the name; `what` tells the kind in the error.
node& the_one(shell::open_dialog& dialog, const std::vector<node*>& there, std::string_view name,
              std::string_view what) {
    std::vector<node*> fitting;
    std::ranges::copy_if(there, std::back_inserter(fitting), [&](node* n) { return is_called(*n, name); });
    if (fitting.size() == 1) return *fitting.front();
    std::vector<std::string> names;
    for (node* each : there) names.push_back(each->name());
    const std::string place = words("диалог ", "the dialog ") + in_quotes(dialog.caption());
    if (fitting.empty())
        throw impossible(place + words(": нет элемента ", " has no ") + std::string(what) + ' ' +
                         in_quotes(name) + words("; есть ", "; it has ") + joined(names));
    throw impossible(
        place + words(": подходящих элементов ", " has ") + std::to_string(fitting.size()) + ' ' +
        std::string(what) + words(" ", "s ") + in_quotes(name) +
        words("; назовите и группу: \"Группа/Название\"", "; name the group too, as in \"Group/Name\""));
}

/// Does the item begin with this whole word or number? "1N (CM 177W)" begins with "1" and "1N", not "10N".
bool begins_with_word(std::string_view item, std::string_view value) {
    if (value.empty() || !item.starts_with(value) || item.size() == value.size()) return false;
    const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
    const auto parts = [&](char c) { return is_digit(value.back()) ? !is_digit(c) && c != '.' : c == ' '; };
    return parts(item[value.size()]);
}

/// The item itself, else the only one that begins with that word or number, else the only one that begins so.
std::vector<std::string>::const_iterator item_of(const std::vector<std::string>& items,
                                                 std::string_view value) {
    const auto only = [&](auto&& fits) {
        const auto first = std::ranges::find_if(items, fits);
        const bool more = first != items.end() && std::any_of(first + 1, items.end(), fits);
        return more ? items.end() : first;
    };
    if (const auto exact = std::ranges::find(items, value); exact != items.end()) return exact;
    const auto word = only([&](const std::string& item) { return begins_with_word(item, value); });
    if (word != items.end() || value.empty()) return word;
    return only([&](const std::string& item) { return item.starts_with(value); });
}

node& the_only(shell::open_dialog& dialog, const std::vector<node*>& there, std::string_view what) {
    if (there.size() == 1) return *there.front();
    throw impossible(words("диалог ", "the dialog ") + in_quotes(dialog.caption()) +
                     words(": элементов ", " has ") + std::to_string(there.size()) + ' ' + std::string(what) +
                     words(", а не один", "s, not one"));
}

}  // namespace

node& dialog_hands::find(node_kind kind, std::string_view name) {
    return the_one(dialog_, all(dialog_, [&](node& n) { return n.kind() == kind; }), name,
                   shell::name_of(kind));
}

node& dialog_hands::control(std::string_view name) {
    return the_one(dialog_, all(dialog_, is_control), name, "control");
}

node& dialog_hands::only(node_kind kind) {
    return the_only(dialog_, all(dialog_, [&](node& n) { return n.kind() == kind; }), shell::name_of(kind));
}

node& dialog_hands::tool(std::string_view id) {
    const auto tools = all(dialog_, [](node& n) { return n.kind() == node_kind::action_tool; });
    const auto found = std::ranges::find(tools, id, &node::id);
    if (found != tools.end()) return **found;
    std::vector<std::string> ids;
    for (node* each : tools) ids.push_back(each->id());
    throw impossible(words("диалог ", "the dialog ") + in_quotes(dialog_.caption()) +
                     words(": нет инструмента ", " has no tool ") + in_quotes(id) +
                     words("; есть ", "; it has ") + joined(ids));
}

std::vector<node*> dialog_hands::all_in_group(node_kind kind, std::string_view group) {
    return all(dialog_, [&](node& each) { return each.kind() == kind && stands_in_group(each, group); });
}

node& dialog_hands::menu_button() {
    return the_only(dialog_, all(dialog_, [](node& n) { return n.has_menu(); }), "button with a menu");
}

void dialog_hands::click(std::string_view button) {
    if (!find(node_kind::button, button).click())
        throw impossible(words("кнопка ", "the button ") + in_quotes(button) +
                         words(" отключена", " is off"));
}

void dialog_hands::click_tool(std::string_view id) {
    if (!tool(id).click())
        throw impossible(words("инструмент ", "the tool ") + in_quotes(id) + words(" отключён", " is off"));
}

void dialog_hands::type(std::string_view input, std::string_view text) {
    change(find(node_kind::input, input), text);
}

void dialog_hands::choose(std::string_view choice, std::string_view item) {
    change(find(node_kind::dropdown, choice), item);
}

void dialog_hands::set(std::string_view name, std::string_view value) { change(control(name), value); }

void dialog_hands::enter(std::string_view number, double value) {
    change(find(node_kind::floating_input, number), number_text(value));
}

void dialog_hands::change(node& control, std::string_view value) {
    const std::string called = in_quotes(control.name());
    if (!control.state().enabled || control.state().read_only)
        throw impossible(called + words(" здесь не изменяется", " cannot be changed here"));
    if (control.kind() == node_kind::dropdown) {
        const auto& items = control.state().items;
        const auto item = item_of(items, value);
        if (item == items.end())
            throw impossible(called + words(": нет элемента ", " has no item ") + in_quotes(value) +
                             words("; есть ", "; it has ") + joined(items));
        control.choose(static_cast<std::uint32_t>(item - items.begin()));
    } else if (control.kind() == node_kind::floating_input) {
        const auto number = parse_number(value);
        if (!number)
            throw impossible(called + ": " + in_quotes(value) + words(" — не число", " is no number"));
        const double low = control.state().minimum;
        const double high = control.state().maximum;
        if (*number < low || *number > high)
            throw impossible(called + ": " + std::string(value) +
                             words(" вне пределов от ", " is not between ") + number_text(low) +
                             words(" до ", " and ") + number_text(high));
        if (!control.enter(*number))
            throw impossible(called + words(" не принимает ", " refuses ") + std::string(value));
    } else {
        control.type(value);  // whether it was accepted shows in what the dialog offers next
    }
}

namespace {

std::vector<node*> entries_of(node& menu) {
    std::vector<node*> entries;
    collect(
        menu, [](node& n) { return n.kind() == node_kind::action_tool; }, entries);
    return entries;
}

std::unique_ptr<node> opened(node& button) {
    auto menu = button.open_menu();
    if (!menu)
        throw impossible(words("кнопка ", "the button ") + in_quotes(button.name()) +
                         words(" не открывает меню", " opens no menu"));
    return menu;
}

}  // namespace

std::vector<std::string> dialog_hands::menu_entries(node& button) {
    const auto menu = opened(button);
    std::vector<std::string> captions;
    for (node* entry : entries_of(*menu)) captions.push_back(entry->state().caption);
    return captions;
}

void dialog_hands::choose_entry(node& button, std::size_t entry) {
    const auto menu = opened(button);
    const auto entries = entries_of(*menu);
    if (entry >= entries.size() || !entries[entry]->click())
        throw impossible(words("меню ", "the menu of ") + in_quotes(button.name()) +
                         words(": нет доступного пункта ", " has no entry ") + std::to_string(entry) +
                         words(" среди ", " to choose among its ") + std::to_string(entries.size()));
}

bool dialog_hands::press(shell::button_role role) {
    const auto buttons = dialog_.buttons();
    const auto found = std::ranges::find(buttons, role, &shell::dialog_button::role);
    if (found == buttons.end())
        throw impossible(words("диалог ", "the dialog ") + in_quotes(dialog_.caption()) +
                         words(": нет такой стандартной кнопки", " has no such standard button"));
    if (!found->enabled)
        throw impossible(words("кнопка ", "the button ") + in_quotes(found->caption) +
                         words(" отключена", " is off"));
    return dialog_.press(static_cast<std::size_t>(found - buttons.begin()));
}

void check_rows(shell::table_model& table, std::span<const std::uint32_t> rows) {
    for (const std::uint32_t row : rows) {
        if (row >= table.row_count())
            throw impossible(words("в таблице нет строки ", "the table has no row ") + std::to_string(row) +
                             words(" среди ", " among its ") + std::to_string(table.row_count()));
        table.check(row, true);
    }
}

}  // namespace oxhost::headless
