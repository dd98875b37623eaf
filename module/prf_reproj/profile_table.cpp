#include "prf_reproj/profile_table.h"

#include "resources/text.h"

namespace ox::element::detail {

prf_name_column::prf_name_column(prf_list& list) : prf_column(list, text::sections, &prf_row::caption) {}

prf_projection_column::prf_projection_column(prf_list& list)
    : prf_column(list, text::line_projection, &prf_row::pj4) {}

void prf_check::set_state(custom_pointer item, bool checked) {
    prf_row& row = list_->rows[toolkit::row_of(item)];
    if (!row.selected) {
        row.checked = checked;
        return;
    }
    for (prf_row& each : list_->rows)
        if (each.selected) each.checked = checked;
    list_->notify();
}

void prf_outline::visit_checks(custom_pointer checks_visitor) {
    call<&outline_checks_visitor_impl::visit>(checks_visitor, make_pointer<outline_checks_impl>(check_));
}

void prf_outline::visit_column(std::uint32_t index, custom_pointer column_visitor) {
    constexpr auto report = &outline_column_visitor_impl::visit_string_column;
    if (index == 0)
        call<report>(column_visitor, make_pointer<string_outline_column_impl>(name_), prf_name_column::id);
    else if (index == 1)
        call<report>(column_visitor, make_pointer<string_outline_column_impl>(projection_),
                     prf_projection_column::id);
}

void prf_outline::attach_view(custom_pointer view) {
    outline_table::attach_view(view);
    list_->on_changed = [this] { refresh(); };
}

}  // namespace ox::element::detail
