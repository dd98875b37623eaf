#include "prf_reproj/widget.h"

#include "prf_reproj/reprojection_run.h"
#include "resources/text.h"

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
