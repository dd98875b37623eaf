#include "toolkit/outline_table.h"

namespace ox::toolkit {

void outline_table::visit_root(custom_pointer item_visitor) {
    call<&outline_item_index_visitor_impl::visit>(item_visitor, custom_pointer{});
}

void outline_table::visit_column(std::uint32_t index, custom_pointer column_visitor) {
    if (const auto all = columns(); index < all.size()) all[index]->report(column_visitor);
}

void outline_table::set_current_item(custom_pointer item) {
    if (const std::uint32_t row = row_among(row_count(), item); row != no_row) set_current_row(row);
}

bool outline_table::is_selected(custom_pointer item) {
    const std::uint32_t row = row_among(row_count(), item);
    return row != no_row && row == current_row();
}

void outline_table::visit_current_item(custom_pointer item_visitor) {
    const std::uint32_t row = current_row();
    outline_table_item_index item(row);
    call<&outline_item_index_visitor_impl::visit>(
        item_visitor, row == no_row ? custom_pointer{} : make_pointer<outline_item_index_impl>(item));
}

}  // namespace ox::toolkit
