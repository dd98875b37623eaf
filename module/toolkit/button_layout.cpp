#include "toolkit/button_layout.h"

namespace ox::toolkit {

void button_layout::visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) {
    const std::int32_t index = vertical() ? row : column;
    if (index < 0 || index >= size()) return;
    detail::generic_element_impl(buttons_[static_cast<std::size_t>(index)]).visit(element_visitor);
}

button& button_layout::add(std::int32_t caption, std::uint32_t kind) {
    button& added = buttons_.emplace_back(caption, [this, kind] { dispatch(kind); });
    changed();
    return added;
}

void button_layout::dispatch(std::uint32_t kind) {
    const life::watch alive(own_life());
    switch (static_cast<command>(kind)) {
        case command::accept:
        case command::apply:
            on_accept();
            break;
        case command::reject:
        case command::close:
            on_reject();
            break;
        default:
            break;
    }
    if (alive) on_command(kind);
}

}  // namespace ox::toolkit
