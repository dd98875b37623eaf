#pragma once
/// The content of the utility's dialog: check tools, the table of profile scenes, the target. [ui]

#include "prf_reproj/profile_list.h"
#include "prf_reproj/profile_table.h"
#include "projection/proj4_input.h"
#include "toolkit/layouts.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::element::detail {

/// The tools above the table. Their texts speak of selecting; they set the check marks of all rows.
class prf_tools final : public toolkit::with_tools {
public:
    explicit prf_tools(prf_reproj::prf_list& list);
    void visit_tools(const toolkit::tools_visitor& state) override;

private:
    toolkit::action_tool select_;
    toolkit::action_tool unselect_;
    toolkit::action_tool invert_;
};

}  // namespace ox::element::detail

namespace ox {

class scn2d_prf_reproj_widget {
public:
    /// Lists the profile scenes of the project that is open.
    scn2d_prf_reproj_widget();

    toolkit::grid_layout<3, 1>& element() { return root_; }
    /// Runs the reprojection; false, so the dialog stays open.
    bool apply();

private:
    prf_reproj::prf_list list_;
    toolkit::toolbar<element::detail::prf_tools, toolbar_impl, void> tools_{list_};
    element::detail::prf_outline table_{list_};
    element::proj4_input target_;
    toolkit::groupbox<1, 1> target_group_;
    toolkit::grid_layout<3, 1> root_;
    subscription target_changed_;
};

}  // namespace ox
