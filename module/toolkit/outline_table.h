#pragma once
/// A flat table of rows over the host's outline: the root's children are the rows, rows have none.

#include <cstdint>
#include <span>

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

/// Row that an item names; the root names row 0.
inline std::uint32_t row_of(custom_pointer item) { return call<&outline_item_index_impl::row>(item); }

inline constexpr std::uint32_t no_row = 0xFFFFFFFF;

/// The same among `count` rows; `no_row` where there is no such row. It counts as an empty row: nothing
/// stands in it, and what is set there is dropped.
inline std::uint32_t row_among(std::size_t count, custom_pointer item) {
    const std::uint32_t row = row_of(item);
    return row < count ? row : no_row;
}

/// A column that tells a host of itself.
class outline_column {
public:
    /// Hands the column and its id to the visitor's slot for columns of its kind.
    virtual void report(custom_pointer column_visitor) = 0;

protected:
    ~outline_column() = default;
};

namespace detail {

template <class Impl, auto Operation>
class reported_column : public Impl, public outline_column {
public:
    explicit reported_column(const wchar_t* id) : id_(id) {}
    void report(custom_pointer column_visitor) final {
        call<Operation>(column_visitor, make_pointer<Impl>(*this), id_);
    }

protected:
    ~reported_column() = default;

private:
    const wchar_t* id_;
};

}  // namespace detail

using string_column =
    detail::reported_column<string_outline_column_impl, &outline_column_visitor_impl::visit_string_column>;
using bitmap_column =
    detail::reported_column<bitmap_outline_column_impl, &outline_column_visitor_impl::visit_bitmap_column>;

/// Base of the application's tables.
class outline_table : public with_view<outline_impl> {
public:
    bool flag_1() override { return true; }
    void visit_root(custom_pointer item_visitor) override;
    std::uint32_t column_count() override { return static_cast<std::uint32_t>(columns().size()); }
    void visit_column(std::uint32_t index, custom_pointer column_visitor) override;
    std::uint32_t value_8() override { return 5; }
    void visit_current_item(custom_pointer item_visitor) override;
    void set_current_item(custom_pointer item) override;
    bool is_selected(custom_pointer item) override;
    bool has_children(custom_pointer item) override { return !item; }
    std::uint32_t child_count(custom_pointer item) override { return item ? 0 : row_count(); }
    bool flag_29() override { return true; }
    bool flag_30() override { return true; }

    virtual std::uint32_t row_count() { return 0; }
    virtual std::uint32_t current_row() { return no_row; }
    virtual void set_current_row(std::uint32_t /*row*/) {}  ///< below the row count

protected:
    ~outline_table() = default;

    /// In the order in which the host numbers them.
    virtual std::span<outline_column* const> columns() { return {}; }

    /// The host reads the rows, or the selection, anew.
    void refresh() const { call<&outline_view_slots::refresh>(view()); }
    void selection_changed() const { call<&outline_view_slots::selection_changed>(view()); }
};

}  // namespace ox::toolkit
