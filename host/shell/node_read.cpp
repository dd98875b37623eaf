#include <algorithm>
#include <cmath>

#include "border/interfaces/controls.h"
#include "border/interfaces/tools.h"
#include "shell/node.h"
#include "shell/values.h"

namespace oxhost::shell {

namespace {

using ox::call;

grid_line read_line(ox::custom_pointer grid, std::int32_t index, bool row) {
    using g = ox::grid_layout_impl;
    if (row)
        return {call<&g::row_shown>(grid, index), call<&g::row_expands>(grid, index),
                call<&g::row_value>(grid, index)};
    return {call<&g::column_shown>(grid, index), call<&g::column_expands>(grid, index),
            call<&g::column_value>(grid, index)};
}

void read_grid(ox::custom_pointer grid, node_state& state) {
    const auto columns = call<&ox::grid_layout_impl::column_count>(grid);
    const auto rows = call<&ox::grid_layout_impl::row_count>(grid);
    for (std::int32_t i = 0; i < columns; ++i) state.columns.push_back(read_line(grid, i, false));
    for (std::int32_t i = 0; i < rows; ++i) state.rows.push_back(read_line(grid, i, true));
}

void read_button(ox::custom_pointer button, node_state& state) {
    using b = ox::button_impl;
    state.caption = read_utf8<&b::visit_caption>(button);
    state.hint = read_utf8<&b::visit_hint>(button);
    state.enabled = call<&b::enabled>(button);
    state.checked = call<&b::checked>(button);
}

void read_tool(ox::custom_pointer tool, node_state& state) {
    using t = ox::action_tool_impl;
    state.caption = read_utf8<&t::visit_caption>(tool);
    state.hint = read_utf8<&t::visit_hint>(tool);
    state.text = read_utf8<&t::visit_long_text>(tool);
    state.enabled = call<&t::enabled>(tool);
    state.checked = call<&t::checked>(tool);
}

void read_input(ox::custom_pointer input, node_state& state) {
    using i = ox::input_impl;
    state.text = read_utf8<&i::visit_text>(input);
    state.caption = read_utf8<&i::visit_caption>(input);
    state.enabled = call<&i::enabled>(input);
}

void read_number(ox::custom_pointer number, node_state& state) {
    using n = ox::floating_input_impl;
    state.value = call<&n::value>(number);
    state.minimum = call<&n::minimum>(number);
    state.maximum = call<&n::maximum>(number);
    state.decimals = static_cast<int>(std::clamp(std::round(call<&n::decimals>(number)), 0.0, 17.0));
    state.caption = read_utf8<&n::visit_caption>(number);
    state.enabled = call<&n::enabled>(number);
    state.read_only = call<&n::read_only>(number);
}

void read_choice(ox::custom_pointer choice, node_state& state) {
    using d = ox::dropdown_impl;
    const std::uint32_t count = call<&d::item_count>(choice);
    state.items.reserve(count);
    for (std::uint32_t i = 0; i < count; ++i) state.items.push_back(read_utf8<&d::visit_item>(choice, i));
    const std::uint32_t current = call<&d::current>(choice);
    if (current < count) state.current = current;
    state.text = read_utf8<&d::visit_text>(choice);
    if (state.text.empty() && state.current) state.text = state.items[*state.current];
    state.enabled = call<&d::enabled>(choice);
}

void read_output(ox::custom_pointer output, node_state& state) {
    using o = ox::multiline_output_impl;
    state.text = read_utf8<&o::visit_text>(output);
    state.caption = read_utf8<&o::visit_caption>(output);
    state.enabled = call<&o::enabled>(output);
}

}  // namespace

node_state read_state(node_kind kind, ox::custom_pointer element) {
    node_state state;
    switch (kind) {
        case node_kind::grid_layout:
            read_grid(element, state);
            break;
        case node_kind::stack_layout:
            state.current = call<&ox::stack_layout_impl::current>(element);
            break;
        case node_kind::groupbox:
            state.caption = read_utf8<&ox::groupbox_impl::visit_caption>(element);
            state.hint = read_utf8<&ox::groupbox_impl::visit_second_text>(element);
            break;
        case node_kind::action_tool:
            read_tool(element, state);
            break;
        case node_kind::label:
            state.caption = read_utf8<&ox::label_impl::visit_caption>(element);
            state.enabled = call<&ox::label_impl::enabled>(element);
            break;
        case node_kind::button:
            read_button(element, state);
            break;
        case node_kind::input:
            read_input(element, state);
            break;
        case node_kind::floating_input:
            read_number(element, state);
            break;
        case node_kind::dropdown:
            read_choice(element, state);
            break;
        case node_kind::multiline_output:
            read_output(element, state);
            break;
        case node_kind::toolbar:
        case node_kind::context_menu:
        case node_kind::tool_set:
        case node_kind::outline:
            break;
    }
    return state;
}

}  // namespace oxhost::shell
