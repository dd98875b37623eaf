#include "toolkit/outline_table.h"

namespace ox::toolkit {

void outline_table::visit_root(custom_pointer item_visitor) {
    call<&outline_item_index_visitor_impl::visit>(item_visitor, custom_pointer{});
}

void outline_table::visit_current_item(custom_pointer item_visitor) {
    const std::uint32_t row = current_row();
    outline_table_item_index item(row);
    call<&outline_item_index_visitor_impl::visit>(
        item_visitor, row == no_row ? custom_pointer{} : make_pointer<outline_item_index_impl>(item));
}

}  // namespace ox::toolkit
