#pragma once
/// Layout elements. They refer to their children, which live in the parent that holds both.

#include <array>
#include <cstddef>

#include "toolkit/element.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// R rows and C columns of cells; a cell may stay empty. Indexes are not checked: the host asks within
/// the counts it was given.
template <std::int32_t R, std::int32_t C, class>
class grid_layout_base : public with_view<grid_layout_impl> {
public:
    std::int32_t column_count() override { return C; }
    std::int32_t row_count() override { return R; }
    std::uint32_t layout_value() override { return layout_value_; }
    bool column_expands(std::int32_t column) override { return columns_[index(column)].expands; }
    bool row_expands(std::int32_t row) override { return rows_[index(row)].expands; }
    std::uint32_t column_value(std::int32_t column) override { return columns_[index(column)].value; }
    std::uint32_t row_value(std::int32_t row) override { return rows_[index(row)].value; }
    bool column_shown(std::int32_t column) override { return columns_[index(column)].shown; }
    bool row_shown(std::int32_t row) override { return rows_[index(row)].shown; }
    void visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) override {
        cells_[index(row * C + column)].visit(element_visitor);
    }

    template <class X>
    void put(std::int32_t column, std::int32_t row, X& element) {
        if (cells_[index(row * C + column)].put(element)) changed();
    }
    void set_column_expands(std::int32_t column, bool on = true) {
        update(columns_[index(column)].expands, on);
    }
    void set_row_expands(std::int32_t row, bool on = true) { update(rows_[index(row)].expands, on); }
    void set_column_value(std::int32_t column, std::uint32_t value) {
        update(columns_[index(column)].value, value);
    }
    void set_row_value(std::int32_t row, std::uint32_t value) { update(rows_[index(row)].value, value); }
    void set_layout_value(std::uint32_t value) { update(layout_value_, value); }
    // The host lays the grid out anew when rows or columns appear or go.
    void set_column_shown(std::int32_t column, bool shown) { update(columns_[index(column)].shown, shown); }
    void set_row_shown(std::int32_t row, bool shown) { update(rows_[index(row)].shown, shown); }
    void set_rows_shown(const std::array<bool, R>& shown) {
        const in_one_step step(*this);
        for (std::size_t row = 0; row < shown.size(); ++row) update(rows_[row].shown, shown[row]);
    }

protected:
    ~grid_layout_base() = default;

private:
    /// A row or a column.
    struct line {
        bool expands = false;
        bool shown = true;
        std::uint32_t value = 0;
    };
    static constexpr std::size_t index(std::int32_t i) { return static_cast<std::size_t>(i); }

    std::array<detail::place, std::size_t{R} * C> cells_;  // row by row
    std::array<line, R> rows_{};
    std::array<line, C> columns_{};
    std::uint32_t layout_value_ = 0;
};

template <std::int32_t R, std::int32_t C>
class grid_layout : public grid_layout_base<R, C, grid_layout<R, C>> {};

/// N alternative children, of which the host shows the current one.
template <std::uint32_t N>
class stack_layout final : public with_view<stack_layout_impl> {
public:
    std::uint32_t child_count() override { return N; }
    void visit_child(std::uint32_t index, custom_pointer element_visitor) override {
        if (index < N) children_[index].visit(element_visitor);
    }
    std::uint32_t current() override { return current_; }

    template <class X>
    void put(std::uint32_t index, X& element) {
        if (children_[index].put(element)) changed();
    }
    void set_current(std::uint32_t index) { update(current_, index); }

private:
    std::array<detail::place, N> children_;
    std::uint32_t current_ = 0;
};

/// A frame with a caption around one inner grid.
template <class, class Grid>
class groupbox_base : public with_view<groupbox_impl> {
public:
    explicit groupbox_base(std::int32_t caption) : caption_(caption) {}

    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    void visit_second_text(custom_pointer string_visitor) override {
        visit_text_of(second_text_, string_visitor);
    }
    void visit_content(custom_pointer element_visitor) override {
        call<&element_visitor_impl::grid_layout>(element_visitor, make_pointer<grid_layout_impl>(content_));
    }
    bool flag() override { return flag_; }

    Grid& content() { return content_; }
    void set_second_text(std::int32_t text) { update(second_text_, text); }
    void set_flag(bool flag) { update(flag_, flag); }

protected:
    ~groupbox_base() = default;

private:
    Grid content_;
    std::int32_t caption_;
    std::int32_t second_text_ = 0;
    bool flag_ = true;
};

template <std::int32_t R, std::int32_t C>
class groupbox : public groupbox_base<groupbox<R, C>, grid_layout<R, C>> {
public:
    using groupbox_base<groupbox<R, C>, grid_layout<R, C>>::groupbox_base;
};

}  // namespace ox::toolkit
