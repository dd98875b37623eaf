// Layouts as the host walks them.

#include "toolkit/layouts.h"
#include "testing/case_name.h"
#include "toolkit/button_layout.h"
#include "toolkit/input.h"
#include "toolkit/labeled_element.h"

namespace ox::toolkit {
namespace {

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

using direction = button_layout::direction;
using sizes = button_layout::sizes;
struct layout_case {
    const char* name;
    direction along;
    button_layout::sizes sizes;
    int buttons, columns, rows;
    unsigned column_value, row_value;
};

TEST_CASES(ButtonLayout, EndsInAnEmptyExpandingCell, layout_case,
           {"Empty", direction::row, sizes::natural, 0, 1, 1, 0, 0},
           {"Row", direction::row, sizes::equal_along, 3, 4, 1, 1, 0},
           {"Column", direction::column, sizes::equal_along, 2, 1, 3, 0, 1},
           {"Equal", direction::row, sizes::equal, 2, 3, 1, 1, 1}) {
    button_layout layout(c.along, c.sizes);
    for (int i = 0; i < c.buttons; ++i) layout.add(0, 1);
    EXPECT_EQ(std::pair(layout.column_count(), layout.row_count()), std::pair(c.columns, c.rows));
    const bool vertical = c.along == direction::column;
    EXPECT_EQ(layout.column_expands(c.buttons), !vertical);
    EXPECT_EQ(layout.row_expands(c.buttons), vertical);
    EXPECT_EQ(std::pair(layout.column_value(0), layout.row_value(0)), std::pair(c.column_value, c.row_value));
    kinds_seen seen;
    layout.visit_cell(vertical ? 0 : c.buttons, vertical ? c.buttons : 0, seen.pointer());
    EXPECT_EQ(seen.kinds, "");
}

}  // namespace
}  // namespace ox::toolkit
