#include "oxcheck/tree/user.h"

#include <algorithm>

#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"

namespace oxcheck {

namespace {

template <class I>
std::vector<custom_pointer> all_of(const std::vector<element>& elements) {
    std::vector<custom_pointer> found;
    for (const element& each : elements)
        if (each.is<I>()) found.push_back(each.pointer);
    return found;
}

void fill_in(const std::vector<element>& elements) {
    for (const custom_pointer input : all_of<ox::input_impl>(elements)) {
        ox::call<&ox::input_impl::set_text>(input, script::crs_code);
        ox::call<&ox::input_impl::commit>(input);
    }
    for (const custom_pointer list : all_of<ox::dropdown_impl>(elements))
        for (std::uint32_t i = 0; i < ox::call<&ox::dropdown_impl::item_count>(list); ++i)
            ox::call<&ox::dropdown_impl::select>(list, i);
    for (const custom_pointer number : all_of<ox::floating_input_impl>(elements))
        if (!ox::call<&ox::floating_input_impl::read_only>(number))
            ox::call<&ox::floating_input_impl::set_value>(number,
                                                          ox::call<&ox::floating_input_impl::value>(number));
}

void click_all(const std::vector<element>& elements) {
    for (const custom_pointer button : all_of<ox::button_impl>(elements))
        ox::call<&ox::button_impl::click>(button);
    for (const custom_pointer tool : all_of<ox::action_tool_impl>(elements))
        ox::call<&ox::action_tool_impl::click>(tool);
    for (const custom_pointer menu : all_of<ox::context_menu_impl>(elements)) {
        const open_menu open(menu);
        if (!open.tools().empty()) ox::call<&ox::action_tool_impl::click>(open.tools().front().pointer);
    }
}

void check_all_rows(const std::vector<element>& elements) {
    for (const element& each : elements)
        if (each.is<ox::outline_checks_impl>())
            for (std::uint32_t row = 0; row < rows_of(each); ++row) {
                anything item(row);
                ox::call<&ox::outline_checks_impl::set_state>(each.pointer, item.pointer(), true);
            }
}

}  // namespace

bool user::operate(custom_pointer docker, custom_pointer button_box) const {
    const std::vector<element> elements = walk(docker, button_box);
    fill_in(elements);
    click_all(elements);
    check_all_rows(elements);
    const std::int32_t buttons = ox::call<&ox::button_box_impl::count>(button_box);
    for (std::int32_t i = 0; i < buttons; ++i) {
        if (!ox::call<&ox::button_box_impl::enabled>(button_box, i)) continue;
        if (i == 0 && before_accepting) before_accepting();
        const bool closes = ox::call<&ox::button_box_impl::click>(button_box, i);
        if (i == 0 && after_accepting) after_accepting();
        if (closes) return i == 0;
    }
    return false;
}

}  // namespace oxcheck
