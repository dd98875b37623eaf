#include "table.h"

#include "border/host_api/oxk_scn_2d.h"
#include "fault.h"
#include "resources/text.h"
#include "support/string_adapter.h"

namespace broken {

namespace {

/// Null where there is no such row.
table_row* row_at(std::vector<table_row>& rows, custom_pointer item) {
    const std::uint32_t row = ox::toolkit::row_of(item);
    return row < rows.size() ? &rows[row] : nullptr;
}

std::wstring text_at(std::vector<table_row>& rows, custom_pointer item) {
    if (const table_row* row = row_at(rows, item)) return row->caption;
    return is(fault::invents_rows) ? L"nothing" : L"";
}

}  // namespace

scene_table::scene_table(const std::vector<void*>& scenes) {
    for (void* scene : scenes)
        rows_.push_back({ox::adapted_text([scene](void* to) { ox_scn_2d_get_wcaption(scene, to); })});
}

void scene_table::visit_checks(custom_pointer checks_visitor) {
    ox::call<&ox::outline_checks_visitor_impl::visit>(checks_visitor,
                                                      ox::make_pointer<ox::outline_checks_impl>(checks_));
}

void scene_table::visit_column(std::uint32_t index, custom_pointer column_visitor) {
    if (index == 0)
        ox::call<&ox::outline_column_visitor_impl::visit_string_column>(
            column_visitor, ox::make_pointer<ox::string_outline_column_impl>(column_), L"column");
}

bool scene_table::is_selected(custom_pointer item) {
    const table_row* row = row_at(rows_, item);
    return row && row->selected;
}
void scene_table::set_selected(custom_pointer item, bool selected) {
    if (table_row* row = row_at(rows_, item)) row->selected = selected;
}

void scene_table::column::visit_caption(custom_pointer string_visitor) {
    ox::toolkit::visit_text_of(ox::text::sections, string_visitor);
}
void scene_table::column::visit_cell_text(custom_pointer item, custom_pointer string_visitor) {
    ox::call<&ox::string_visitor_impl::visit>(string_visitor, text_at(rows_, item).c_str());
}
bool scene_table::column::sorts_after(custom_pointer a, custom_pointer b) {
    return text_at(rows_, a) > text_at(rows_, b);
}

bool scene_table::checks::state(custom_pointer item) {
    const table_row* row = row_at(rows_, item);
    return row && row->checked;
}
void scene_table::checks::set_state(custom_pointer item, bool checked) {
    if (table_row* row = row_at(rows_, item)) row->checked = checked;
}

}  // namespace broken
