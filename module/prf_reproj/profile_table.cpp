#include "prf_reproj/profile_table.h"

#include "resources/text.h"

namespace ox::element::detail {

const prf_row& row_at(prf_list& list, custom_pointer item) {
    static const prf_row empty;
    const prf_row* found = find_row(list, item);
    return found ? *found : empty;
}

prf_name_column::prf_name_column(prf_list& list) : prf_column(id, list, text::sections, &prf_row::caption) {}

prf_projection_column::prf_projection_column(prf_list& list)
    : prf_column(id, list, text::line_projection, &prf_row::pj4) {}

void prf_check::set_state(custom_pointer item, bool checked) {
    prf_row* const row = find_row(*list_, item);
    if (!row) return;
    if (!row->selected) {
        row->checked = checked;
        return;
    }
    for (prf_row& each : list_->rows)
        if (each.selected) each.checked = checked;
    list_->notify();
}

void prf_outline::visit_checks(custom_pointer checks_visitor) {
    call<&outline_checks_visitor_impl::visit>(checks_visitor, make_pointer<outline_checks_impl>(check_));
}

void prf_outline::attach_view(custom_pointer view) {
    outline_table::attach_view(view);
    list_->on_changed = [this] { refresh(); };
}

}  // namespace ox::element::detail
