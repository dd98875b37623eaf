#pragma once
/// A flat table of rows over the host's outline: the root's children are the rows, rows have none.

#include <cstdint>

#include "border/interfaces/outlines.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// Names one row; made on the fly and lent for a call.
class outline_table_item_index final : public outline_item_index_impl {
public:
    explicit outline_table_item_index(std::uint32_t row) : row_(row) {}
    void visit_parent(custom_pointer item_visitor) override {
        call<&outline_item_index_visitor_impl::visit>(item_visitor, custom_pointer{});
    }
    std::uint32_t row() override { return row_; }

private:
    std::uint32_t row_;
};

/// Row that an item pointer names; the root counts as row 0, so choosing the root chooses row 0.
inline std::uint32_t row_of(custom_pointer item) { return call<&outline_item_index_impl::row>(item); }

/// Base of the application's tables. Rows are not range-checked: the host asks for those below the count.
class outline_table : public with_view<outline_impl> {
public:
    static constexpr std::uint32_t no_row = 0xFFFFFFFF;

    bool flag_1() override { return true; }
    void visit_root(custom_pointer item_visitor) override;
    std::uint32_t value_8() override { return 5; }
    void visit_current_item(custom_pointer item_visitor) override;
    void set_current_item(custom_pointer item) override { set_current_row(row_of(item)); }
    bool is_selected(custom_pointer item) override { return row_of(item) == current_row(); }
    bool has_children(custom_pointer item) override { return !item; }
    std::uint32_t child_count(custom_pointer item) override { return item ? 0 : row_count(); }
    bool flag_29() override { return true; }
    bool flag_30() override { return true; }

    virtual std::uint32_t row_count() { return 0; }
    virtual std::uint32_t current_row() { return no_row; }
    virtual void set_current_row(std::uint32_t row) { (void)row; }

protected:
    ~outline_table() = default;

    /// The host reads the rows, or the selection, anew.
    void refresh() const { call<&outline_view_slots::refresh>(view()); }
    void selection_changed() const { call<&outline_view_slots::selection_changed>(view()); }
};

}  // namespace ox::toolkit
