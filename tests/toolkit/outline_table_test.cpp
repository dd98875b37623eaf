// Flat tables over the host's outline.

#include <gtest/gtest.h>

#include "toolkit/outline_table.h"

namespace ox::toolkit {
namespace {

struct numbered final : outline_table {
    std::uint32_t chosen = no_row;
    std::uint32_t row_count() override { return 4; }
    std::uint32_t current_row() override { return chosen; }
    void set_current_row(std::uint32_t row) override { chosen = row; }
};

struct item_seen : outline_item_index_visitor_impl {
    std::uint32_t row = 77;
    bool root = false;
    void visit(custom_pointer item) override { root = !item, row = row_of(item); }
};

TEST(OutlineTable, IsFlatAndItsRootStandsForRowZero) {
    numbered table;
    item_seen seen;
    const custom_pointer visitor = make_pointer<outline_item_index_visitor_impl>(seen);
    outline_table_item_index three(3);
    const custom_pointer row3 = make_pointer<outline_item_index_impl>(three);
    EXPECT_TRUE(table.has_children({}) && !table.has_children(row3));
    EXPECT_EQ(table.child_count({}), 4u);
    EXPECT_EQ(table.child_count(row3), 0u);
    table.visit_current_item(visitor);
    EXPECT_TRUE(seen.root);
    table.set_current_item(row3);
    table.visit_current_item(visitor);
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
