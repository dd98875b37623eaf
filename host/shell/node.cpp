#include "shell/node.h"

#include <algorithm>
#include <array>

#include "border/interfaces/controls.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/tools.h"
#include "shell/values.h"

namespace oxhost::shell {

namespace {

using ox::call;

bool is_control(node_kind kind) {
    return kind == node_kind::input || kind == node_kind::floating_input || kind == node_kind::dropdown;
}

struct menu_reader final : ox::context_menu_visitor_impl {
    void visit(ox::custom_pointer found) override { menu = found; }
    ox::custom_pointer menu{};
};

ox::custom_pointer menu_of(ox::custom_pointer button) {
    menu_reader reader;
    call<&ox::button_impl::visit_menu>(button, ox::make_pointer<ox::context_menu_visitor_impl>(reader));
    return reader.menu;
}

}  // namespace

std::string_view name_of(node_kind kind) {
    switch (kind) {
#define OX_ELEMENT(words, slot, caption) \
    case node_kind::words:               \
        return caption;
#include "border/element_kinds.inc"
#undef OX_ELEMENT
        case node_kind::context_menu:
            return "menu";
        case node_kind::tool_set:
            return "tools";
        case node_kind::action_tool:
            return "tool";
    }
    return {};
}

struct node::found_child {
    node_kind kind;
    ox::custom_pointer element;
    std::uint32_t row;
    std::uint32_t column;
    std::string id;
};

/// Receives elements and tools and notes where they stand.
class node::collector final : public ox::element_visitor_impl, public ox::tool_set_visitor_impl {
public:
#define OX_ELEMENT(words, slot, caption) \
    void words(ox::custom_pointer e) override { add(node_kind::words, e); }
#include "border/element_kinds.inc"
#undef OX_ELEMENT
    void visit_tool_set(ox::custom_pointer set) override { add(node_kind::tool_set, set); }
    void visit_action_tool(const wchar_t* id, ox::custom_pointer tool) override {
        add(node_kind::action_tool, tool, to_utf8(id));
    }
    std::size_t other() override { return 0; }

    ox::custom_pointer elements() { return ox::make_pointer<ox::element_visitor_impl>(*this); }
    ox::custom_pointer tools() { return ox::make_pointer<ox::tool_set_visitor_impl>(*this); }

    std::uint32_t row = 0;
    std::uint32_t column = 0;
    std::vector<found_child> found;

private:
    void add(node_kind kind, ox::custom_pointer element, std::string id = {}) {
        if (element) found.push_back({kind, element, row, column, std::move(id)});
    }
};

node::node(node_kind kind, ox::custom_pointer element, node* parent, std::string id)
    : kind_(kind), element_(element), parent_(parent), id_(std::move(id)) {
    if (kind_ == node_kind::outline)
        rows_ = std::make_unique<table_model>(element_);
    else
        attach(ox::make_pointer<ox::element_view_slots>(*this));
}

node::~node() {
    children_.clear();
    if (kind_ != node_kind::outline) attach({});
}

/// An outline has views of its own, which its table attaches.
void node::attach(ox::custom_pointer view) {
    switch (kind_) {
#define OX_ELEMENT(words, slot, caption) \
    case node_kind::words:               \
        return call<&ox::words##_impl::attach_view>(element_, view);
#include "border/element_kinds.inc"
#undef OX_ELEMENT
        case node_kind::context_menu:
            return call<&ox::context_menu_impl::attach_view>(element_, view);
        case node_kind::tool_set:
            return call<&ox::tool_set_impl::attach_view>(element_, view);
        case node_kind::action_tool:
            return call<&ox::action_tool_impl::attach_view>(element_, view);
    }
}

void node::changed() {
    stale_ = true;
    // Asking a menu for its entries makes new ones, so an open menu keeps those it has.
    children_stale_ = children_stale_ || kind_ == node_kind::grid_layout ||
                      kind_ == node_kind::stack_layout || kind_ == node_kind::groupbox ||
                      kind_ == node_kind::toolbar;
    if (on_changed) on_changed();
}

const node_state& node::state() {
    if (stale_) {
        state_ = read_state(kind_, element_);
        stale_ = false;
    }
    return state_;
}

const std::vector<std::unique_ptr<node>>& node::children() {
    if (children_stale_) {
        children_stale_ = false;
        read_children();
    }
    return children_;
}

std::vector<node::found_child> node::find_children() {
    collector reader;
    switch (kind_) {
        case node_kind::grid_layout:
            for (reader.row = 0; reader.row < state().rows.size(); ++reader.row)
                for (reader.column = 0; reader.column < state().columns.size(); ++reader.column)
                    call<&ox::grid_layout_impl::visit_cell>(
                        element_, static_cast<std::int32_t>(reader.column),
                        static_cast<std::int32_t>(reader.row), reader.elements());
            break;
        case node_kind::stack_layout: {
            const std::uint32_t count = call<&ox::stack_layout_impl::child_count>(element_);
            for (reader.row = 0; reader.row < count; ++reader.row)
                call<&ox::stack_layout_impl::visit_child>(element_, reader.row, reader.elements());
            break;
        }
        case node_kind::groupbox:
            call<&ox::groupbox_impl::visit_content>(element_, reader.elements());
            break;
        case node_kind::toolbar:
            call<&ox::toolbar_impl::visit_tool_sets>(element_, reader.tools());
            break;
        case node_kind::context_menu:
            call<&ox::context_menu_impl::visit_tool_sets>(element_, reader.tools());
            break;
        case node_kind::tool_set:
            call<&ox::tool_set_impl::visit_tools>(element_, reader.tools());
            break;
        default:
            break;
    }
    return std::move(reader.found);
}

/// Nodes whose elements are still there stay. The others end before any new one begins: an element may
/// have moved, and must lose its old view before it gets its new one.
void node::read_children() {
    const auto found = find_children();
    std::vector<std::unique_ptr<node>> next(found.size());
    for (std::size_t i = 0; i < std::min(found.size(), children_.size()); ++i)
        if (children_[i]->kind_ == found[i].kind && children_[i]->element_ == found[i].element)
            next[i] = std::move(children_[i]);
    children_.clear();
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (!next[i]) next[i] = std::make_unique<node>(found[i].kind, found[i].element, this, found[i].id);
        next[i]->row_ = found[i].row;
        next[i]->column_ = found[i].column;
    }
    children_ = std::move(next);
}

node* node::neighbour(std::uint32_t column, std::uint32_t row) {
    if (!parent_ || parent_->kind_ != node_kind::grid_layout) return nullptr;
    for (const auto& each : parent_->children())
        if (each->column_ == column && each->row_ == row) return each.get();
    return nullptr;
}

node* node::label() {
    node* left = column_ > 0 ? neighbour(column_ - 1, row_) : nullptr;
    return left && left->kind_ == node_kind::label ? left : nullptr;
}

std::string node::name() {
    if (!state().caption.empty() || !is_control(kind_)) return state().caption;
    std::size_t controls = 0;
    std::string caption;
    for (std::uint32_t c = 0; parent_ && c < parent_->state().columns.size(); ++c) {
        node* beside = neighbour(c, row_);
        if (!beside) continue;
        if (is_control(beside->kind_)) ++controls;
        if (beside->kind_ == node_kind::label && c < column_) caption = beside->state().caption;
    }
    node* heading = controls > 1 ? neighbour(column_, 0) : nullptr;
    if (heading && heading->kind_ == node_kind::label) caption += ' ' + heading->state().caption;
    for (node* up = parent_; caption.empty() && up; up = up->parent_)
        if (up->kind_ == node_kind::groupbox) caption = up->state().caption;
    return caption;
}

bool node::shown() {
    if (!parent_) return true;
    if (parent_->kind_ == node_kind::grid_layout) {
        const node_state& grid = parent_->state();
        if (!grid.rows[row_].shown || !grid.columns[column_].shown) return false;
    }
    if (parent_->kind_ == node_kind::stack_layout && parent_->state().current != row_) return false;
    return parent_->shown();
}

bool node::click() {
    if (!state().enabled) return false;
    if (kind_ == node_kind::button)
        call<&ox::button_impl::click>(element_);
    else if (kind_ == node_kind::action_tool)
        call<&ox::action_tool_impl::click>(element_);
    else
        return false;
    stale_ = true;
    return true;
}

bool node::type(std::string_view text) {
    if (kind_ != node_kind::input || !state().enabled) return false;
    call<&ox::input_impl::set_text>(element_, to_wide(text).c_str());
    stale_ = true;
    return call<&ox::input_impl::commit>(element_);
}

bool node::enter(double value) {
    if (kind_ != node_kind::floating_input || !state().enabled || state().read_only) return false;
    stale_ = true;
    return call<&ox::floating_input_impl::set_value>(element_, value);
}

bool node::choose(std::uint32_t item) {
    if (kind_ != node_kind::dropdown || !state().enabled || item >= state().items.size()) return false;
    stale_ = true;
    call<&ox::dropdown_impl::select>(element_, item);
    return true;
}

bool node::has_menu() { return kind_ == node_kind::button && menu_of(element_); }

std::unique_ptr<node> node::open_menu() {
    const ox::custom_pointer menu =
        kind_ == node_kind::button && state().enabled ? menu_of(element_) : ox::custom_pointer{};
    return menu ? std::make_unique<node>(node_kind::context_menu, menu) : nullptr;
}

picture node::image() {
    return read_picture([this](ox::custom_pointer visitor) {
        if (kind_ == node_kind::button) call<&ox::button_impl::visit_image>(element_, visitor);
        if (kind_ == node_kind::action_tool) call<&ox::action_tool_impl::visit_image>(element_, visitor);
    });
}

}  // namespace oxhost::shell
