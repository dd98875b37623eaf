#pragma once
/// The bundle's element tree as plain nodes: what a window draws, and what a scripted user reads. [ui]
///
/// A node reads its element when it is asked and keeps the answers until the element's view tells of a
/// change. Every element has its node's view attached for as long as the node lives; the node takes it
/// away when it ends, and so must end before the element does. A control's caption is a label in the cell
/// to the left of it.

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "border/interfaces/layouts.h"
#include "shell/table.h"
#include "shell/values.h"

namespace oxhost::shell {

/// The kinds of element, and what stands in toolbars and menus.
enum class node_kind {
#define OX_ELEMENT(words, slot, caption) words,
#include "border/element_kinds.inc"
#undef OX_ELEMENT
    context_menu,
    tool_set,  ///< of a toolbar or menu
    action_tool,
};

/// What messages call it.
std::string_view name_of(node_kind kind);

/// One row or column of a grid.
struct grid_line {
    bool shown;
    bool expands;
    std::uint32_t value;  ///< 1: of equal size with the others that say so
};

/// What an element answers. Each kind fills what it has.
struct node_state {
    std::string caption;  ///< the element's own
    std::string hint;
    std::string text;  ///< of inputs and outputs; of a choice, what it shows
    double value = 0;  ///< of numbers
    double minimum = 0;
    double maximum = 0;
    int decimals = 0;
    std::vector<std::string> items;        ///< of choices
    std::optional<std::uint32_t> current;  ///< item of a choice, page of a stack
    bool enabled = true;
    bool read_only = false;
    bool checked = false;
    std::vector<grid_line> rows, columns;  ///< of grids
};

/// Asks an element all of it.
node_state read_state(node_kind kind, ox::custom_pointer element);

class node final : private ox::element_view_slots {
public:
    /// `id` is that of a tool, empty otherwise.
    node(node_kind kind, ox::custom_pointer element, node* parent = nullptr, std::string id = {});
    ~node();
    node(const node&) = delete;
    node& operator=(const node&) = delete;

    node_kind kind() const { return kind_; }
    const std::string& id() const { return id_; }
    node* parent() const { return parent_; }
    std::uint32_t row() const { return row_; }  ///< of the parent grid
    std::uint32_t column() const { return column_; }

    const node_state& state();
    /// Of a grid row by row, of a stack all pages; empty cells are left out.
    const std::vector<std::unique_ptr<node>>& children();

    /// The label in the cell to the left, or null.
    node* label();
    /// What a user calls it: its own caption, else its label, in a grid of several controls a row with the
    /// heading of its column ("Shift Axis X"), and where there is none of these, the caption of its group.
    std::string name();
    /// Neither it nor what it stands in is hidden by a grid's row or column, or on another page.
    bool shown();

    // What the user does. A disabled element, or one that is read only, ignores it and answers false.
    bool click();                       ///< button, tool
    bool type(std::string_view text);   ///< input: text set and finished; false when it was refused
    bool enter(double value);           ///< number: false when it was refused
    bool choose(std::uint32_t item);    ///< choice
    std::unique_ptr<node> open_menu();  ///< button: its menu, closed when the node ends; null without one
    bool has_menu();                    ///< button
    picture image();                    ///< button, tool; empty without one
    table_model* rows() { return rows_.get(); }  ///< table; null otherwise

    std::function<void()> on_changed;  ///< the element wants to be read again

private:
    struct found_child;
    class collector;

    void changed() override;
    void attach(ox::custom_pointer view);
    void read_children();
    std::vector<found_child> find_children();
    node* neighbour(std::uint32_t column, std::uint32_t row);

    node_kind kind_;
    ox::custom_pointer element_;
    node* parent_;
    std::string id_;
    std::uint32_t row_ = 0;
    std::uint32_t column_ = 0;
    bool stale_ = true;
    bool children_stale_ = true;
    node_state state_;
    std::vector<std::unique_ptr<node>> children_;
    std::unique_ptr<table_model> rows_;
};

}  // namespace oxhost::shell
