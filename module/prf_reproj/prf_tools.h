#pragma once
/// The tools above the table. Their texts speak of selecting; they set the check marks of all rows.

#include "prf_reproj/profile_list.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::element::detail {

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
