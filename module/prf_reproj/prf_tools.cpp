#include "prf_reproj/prf_tools.h"

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
