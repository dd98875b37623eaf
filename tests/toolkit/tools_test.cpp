// Tools in toolbars and menus.

#include <gtest/gtest.h>

#include "counting_view.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::toolkit {
namespace {

struct two_groups : with_tools {
    action_tool a{0, 0, 0}, b{0, 0, 0};
    void visit_tools(const tools_visitor& state) override {
        if (state.collecting) state.collecting->begin_tool_set();
        state.action(0, L"a", a);
        state.action(1, L"b", b);
    }
};

struct tools_seen : tool_set_visitor_impl {
    std::wstring ids;
    custom_pointer last{};
    void visit_tool_set(custom_pointer set) override {
        ids += L"[";
        call<&tool_set_impl::visit_tools>(set, make_pointer<tool_set_visitor_impl>(*this));
        ids += L"]";
    }
    void visit_action_tool(const wchar_t* id, custom_pointer tool) override { ids += id, last = tool; }
};

TEST(Toolbar, ShowsEachGroupItsTools) {
    toolbar<two_groups, toolbar_impl, void> bar;
    tools_seen seen;
    bar.visit_tool_sets(make_pointer<tool_set_visitor_impl>(seen));
    EXPECT_EQ(seen.ids, L"[a][b]");
    call<&action_tool_impl::click>(seen.last);  // no callback set
}

TEST(Reattachable, EndsWhenTheHostDetachesIt) {
    struct watched : action_tool {
        explicit watched(bool& gone) : action_tool(0, 0, 0), gone_(gone) {}
        ~watched() { gone_ = true; }
        bool& gone_;
    };
    bool gone = false;
    counting_view view;
    auto* tool = new reattachable<watched>(gone);
    tool->attach_view(view.pointer());
    EXPECT_FALSE(gone);
    tool->attach_view({});
    EXPECT_TRUE(gone);
}

}  // namespace
}  // namespace ox::toolkit
