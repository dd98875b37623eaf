#include "prf_reproj/widget.h"

#include "prf_reproj/reprojection_run.h"
#include "resources/text.h"

namespace ox::element::detail {

namespace {

/// Sets the check mark of every row to `next` of the old one.
template <class Next>
auto mark_all(prf_reproj::prf_list& list, Next next) {
    return [&list, next] {
        for (auto& row : list.rows) row.checked = next(row.checked);
        list.notify();
    };
}

}  // namespace

prf_tools::prf_tools(prf_reproj::prf_list& list)
    : select_(picture::select_all, text::select_all, text::select_all,
              mark_all(list, [](bool) { return true; })),
      unselect_(picture::clear_selection, text::clear_selection, text::clear_selection,
                mark_all(list, [](bool) { return false; })),
      invert_(picture::invert_selection, text::invert_selection, text::invert_selection,
              mark_all(list, [](bool checked) { return !checked; })) {}

void prf_tools::visit_tools(const toolkit::tools_visitor& state) {
    state.action(0, L"oxk_scn2d_prf_reproj_select_tool", select_);
    state.action(0, L"oxk_scn2d_prf_reproj_unselect_tool", unselect_);
    state.action(0, L"oxk_scn2d_prf_reproj_invert_tool", invert_);
}

}  // namespace ox::element::detail

namespace ox {

scn2d_prf_reproj_widget::scn2d_prf_reproj_widget()
    : target_group_(text::destination_projection),
      target_changed_(target_.changed(), [this] { list_.set_target(target_.text()); }) {
    target_group_.content().put(0, 0, target_);
    target_group_.content().set_column_expands(0);

    root_.put(0, 0, tools_);
    root_.put(0, 1, table_);
    root_.put(0, 2, target_group_);
    root_.set_row_expands(1);
    root_.set_column_expands(0);

    list_.on_suggestions = [this](auto suggestions) { target_.set_suggestions(std::move(suggestions)); };
    list_.rebuild(prf_reproj::current_scenes());
}

bool scn2d_prf_reproj_widget::apply() { return prf_reproj::run_reprojection(list_); }

}  // namespace ox
