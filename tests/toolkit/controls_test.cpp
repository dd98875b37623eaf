// Elements as the host sees them: through their tables.

#include <gtest/gtest.h>

#include "framework/value_visitors.h"
#include "testing/case_name.h"
#include "toolkit/button_box.h"
#include "toolkit/dropdown.h"
#include "toolkit/event.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"
#include "toolkit/layouts.h"
#include "toolkit/numeric_input.h"
#include "toolkit/outline_table.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::toolkit {
namespace {

struct counting_view : element_view_slots {
    int changes = 0;
    void changed() override { ++changes; }
    custom_pointer pointer() { return make_pointer<element_view_slots>(*this); }
};

/// Notes which slot of the element visitor was used, and for what.
struct kinds_seen : element_visitor_impl {
    std::string kinds;
    custom_pointer last{};
    void note(const char* kind, custom_pointer element) { kinds += kind, last = element; }
    void grid_layout(custom_pointer element) override { note("grid ", element); }
    void button(custom_pointer element) override { note("button ", element); }
    void label(custom_pointer element) override { note("label ", element); }
    void input(custom_pointer element) override { note("input ", element); }
    custom_pointer pointer() { return make_pointer<element_visitor_impl>(*this); }
};

TEST(Grid, VisitsCellsByColumnAndRowAndSkipsEmptyOnes) {
    grid_layout<2, 3> grid;
    labeled_element<input> named(0);
    button push(0);
    put_labeled(grid, 0, 1, named);
    grid.put(2, 0, push);
    kinds_seen seen;
    const custom_pointer p = make_pointer<grid_layout_impl>(grid);
    for (int row = 0; row < call<&grid_layout_impl::row_count>(p); ++row)
        for (int column = 0; column < call<&grid_layout_impl::column_count>(p); ++column)
            call<&grid_layout_impl::visit_cell>(p, column, row, seen.pointer());
    EXPECT_EQ(seen.kinds, "button label input ");
    EXPECT_EQ(seen.last, make_pointer<input_impl>(named));
    call<&grid_layout_impl::visit_cell>(p, 2, 0, custom_pointer{});
}

TEST(Grid, HidingARowTellsTheView) {
    grid_layout<2, 1> grid;
    counting_view view;
    grid.attach_view(view.pointer());
    grid.set_row_shown(1, false);
    grid.set_row_shown(1, false);
    EXPECT_FALSE(grid.row_shown(1));
    EXPECT_TRUE(grid.row_shown(0));
    EXPECT_EQ(view.changes, 1);
}

TEST(Views, OnlyTheLastOneHearsAndOnlyOfRealChanges) {
    labeled_element<input> element(0);
    counting_view first, second, caption;
    element.attach_view(first.pointer());
    element.attach_view(second.pointer());
    element.caption_label().attach_view(caption.pointer());
    element.set_enabled(false);
    element.set_enabled(false);
    EXPECT_EQ(first.changes, 0);
    EXPECT_EQ(second.changes, 1);
    EXPECT_EQ(caption.changes, 1);
    EXPECT_FALSE(element.caption_label().enabled());
    element.attach_view({});
    element.set_enabled(true);
    EXPECT_EQ(second.changes, 1);
}

struct layout_case {
    const char* name;
    button_layout::direction along;
    button_layout::sizes sizes;
    int buttons, columns, rows;
    unsigned column_value, row_value;
};

class ButtonLayout : public testing::TestWithParam<layout_case> {};

TEST_P(ButtonLayout, EndsInAnEmptyExpandingCell) {
    const layout_case& c = GetParam();
    button_layout layout(c.along, c.sizes);
    for (int i = 0; i < c.buttons; ++i) layout.add(0, 1);
    EXPECT_EQ(layout.column_count(), c.columns);
    EXPECT_EQ(layout.row_count(), c.rows);
    const bool vertical = c.along == button_layout::direction::column;
    EXPECT_EQ(layout.column_expands(c.buttons), !vertical);
    EXPECT_EQ(layout.row_expands(c.buttons), vertical);
    EXPECT_EQ(layout.column_value(0), c.column_value);
    EXPECT_EQ(layout.row_value(0), c.row_value);
    kinds_seen seen;
    layout.visit_cell(vertical ? 0 : c.buttons, vertical ? c.buttons : 0, seen.pointer());
    EXPECT_EQ(seen.kinds, "");
}

using direction = button_layout::direction;
using sizes = button_layout::sizes;
INSTANTIATE_TEST_SUITE_P(
    Shapes, ButtonLayout,
    testing::Values(layout_case{"Empty", direction::row, sizes::natural, 0, 1, 1, 0, 0},
                    layout_case{"Row", direction::row, sizes::equal_along, 3, 4, 1, 1, 0},
                    layout_case{"Column", direction::column, sizes::equal_along, 2, 1, 3, 0, 1},
                    layout_case{"Equal", direction::row, sizes::equal, 2, 3, 1, 1, 1}),
    case_name);

struct click_case {
    const char* name;
    std::uint32_t kind;
    bool has_apply, has_help, has_command;
    const char* calls;
    bool closes;
};

class ButtonBox : public testing::TestWithParam<click_case> {};

TEST_P(ButtonBox, Clicks) {
    const click_case& c = GetParam();
    std::string calls;
    button_box box;
    box.append(0, c.kind);
    if (c.has_apply) box.on_apply = [&] { return calls += "apply", true; };
    if (c.has_help) box.on_help = [&] { calls += "help"; };
    if (c.has_command) box.on_command = [&](std::uint32_t) { return calls += "command", true; };
    EXPECT_EQ(box.click(0), c.closes);
    EXPECT_EQ(calls, c.calls);
    EXPECT_TRUE(box.click(-1));
}

INSTANTIATE_TEST_SUITE_P(Kinds, ButtonBox,
                         testing::Values(click_case{"Apply", 2, true, true, true, "apply", true},
                                         click_case{"ApplyWithout", 2, false, false, true, "command", true},
                                         click_case{"Yes", 32, true, false, false, "apply", true},
                                         click_case{"Close", 8, true, true, true, "", true},
                                         click_case{"No", 64, true, true, true, "", true},
                                         click_case{"Help", 16, true, true, true, "help", false},
                                         click_case{"HelpWithout", 16, false, false, true, "command", true},
                                         click_case{"HelpWithNobody", 16, false, false, false, "", false},
                                         click_case{"Own", 4133, true, true, true, "command", true}),
                         case_name);

TEST(ButtonBox, AMaskGivesItsButtonsInOrder) {
    button_box box(26);
    EXPECT_EQ(box.count(), 3);
    EXPECT_TRUE(box.click(1));   // 8 closes
    EXPECT_FALSE(box.click(2));  // 16, no help set
    EXPECT_EQ(box.default_index(), -1);
}

TEST(NumericInput, ARefusedValueLeavesTheOldOne) {
    floating_input number(4, 1.5);
    number.on_change = [&](double proposed) {
        EXPECT_EQ(number.value(), proposed);
        return proposed < 10;
    };
    EXPECT_TRUE(number.set_value(2));
    EXPECT_FALSE(number.set_value(11));
    EXPECT_EQ(number.value(), 2);
}

TEST(Dropdown, SpeaksOfNothingCurrentWhereAValueIsUnknown) {
    dropdownex<unsigned> list;
    list.set_items({{L"seven", 7}, {L"nine", 9}});
    list.set_current_value(9u);
    EXPECT_EQ(list.current(), 1u);
    list.set_current_value(8u);
    EXPECT_EQ(list.current(), 0xFFFFFFFFu);
    EXPECT_FALSE(list.current_value());
}

TEST(Event, CallsThoseWhoAreStillThere) {
    event<void()> changed;
    std::string calls;
    auto first = std::make_unique<subscription>(changed, [&] { calls += "first "; });
    subscription second(changed, [&] {
        calls += "second ";
        first.reset();
    });
    subscription third(changed, [&] { calls += "third "; });
    third.connection().disconnect();
    changed.fire();
    changed.fire();
    EXPECT_EQ(calls, "first second second ");

    auto observer = std::make_shared<events::observer>();
    observer->callback = [] {};
    const auto connection = changed.connect(observer);
    connection->block();
    EXPECT_TRUE(observer->blocked);
    observer.reset();
    connection->unblock();
    EXPECT_FALSE(connection->connected());
}

// ---- Tools ----

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

// ---- Outline tables ----

struct numbered final : outline_table {
    std::uint32_t chosen = no_row;
    std::uint32_t row_count() override { return 4; }
    std::uint32_t current_row() override { return chosen; }
    void set_current_row(std::uint32_t row) override { chosen = row; }
};

struct item_seen : outline_item_index_visitor_impl {
    int calls = 0;
    std::uint32_t row = 77;
    bool root = false;
    void visit(custom_pointer item) override { ++calls, root = !item, row = row_of(item); }
};

TEST(OutlineTable, IsFlatAndItsRootStandsForRowZero) {
    numbered table;
    item_seen seen;
    outline_table_item_index three(3);
    const custom_pointer row3 = make_pointer<outline_item_index_impl>(three);
    EXPECT_TRUE(table.has_children({}));
    EXPECT_FALSE(table.has_children(row3));
    EXPECT_EQ(table.child_count({}), 4u);
    EXPECT_EQ(table.child_count(row3), 0u);
    table.visit_current_item(make_pointer<outline_item_index_visitor_impl>(seen));
    EXPECT_TRUE(seen.root);
    table.set_current_item(row3);
    table.visit_current_item(make_pointer<outline_item_index_visitor_impl>(seen));
    EXPECT_EQ(seen.row, 3u);
    EXPECT_TRUE(table.is_selected(row3));
    table.set_current_item({});
    EXPECT_EQ(table.chosen, 0u);
}

TEST(OutlineTable, DoesNothingForARowThatItLacks) {
    numbered table;
    for (const std::uint32_t row : {4u, no_row}) {
        outline_table_item_index beyond(row);
        const custom_pointer item = make_pointer<outline_item_index_impl>(beyond);
        table.set_current_item(item);
        EXPECT_EQ(table.chosen, no_row);
        EXPECT_FALSE(table.is_selected(item));
    }
}

}  // namespace
}  // namespace ox::toolkit
