#pragma once
/// Layout elements. They refer to their children, which live in the parent that holds both.

#include <array>
#include <cstddef>
#include <memory>

#include "toolkit/element.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// R rows and C columns of cells; a cell may stay empty. Indexes are not checked: the host asks within
/// the counts it was given.
template <std::int32_t R, std::int32_t C, class Derived>
class grid_layout_base : public with_view<grid_layout_impl> {
public:
    std::int32_t column_count() override { return C; }
    std::int32_t row_count() override { return R; }
    std::uint32_t layout_value() override { return layout_value_; }
    bool column_expands(std::int32_t column) override { return column_expands_[index(column)]; }
    bool row_expands(std::int32_t row) override { return row_expands_[index(row)]; }
    std::uint32_t column_value(std::int32_t column) override { return column_values_[index(column)]; }
    std::uint32_t row_value(std::int32_t row) override { return row_values_[index(row)]; }
    bool column_shown(std::int32_t column) override { return !column_hidden_[index(column)]; }
    bool row_shown(std::int32_t row) override { return !row_hidden_[index(row)]; }
    void visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) override {
        if (const auto& cell = cells_[index(row * C + column)]) cell->visit(element_visitor);
    }

    template <class X>
    void put(std::int32_t column, std::int32_t row, X& element) {
        cells_[index(row * C + column)] = std::make_unique<detail::generic_element_impl<X>>(element);
    }
    void set_column_expands(std::int32_t column) { column_expands_[index(column)] = true; }
    void set_row_expands(std::int32_t row) { row_expands_[index(row)] = true; }
    /// The host lays the grid out anew when a row appears or goes.
    void set_row_shown(std::int32_t row, bool shown) { this->update(row_hidden_[index(row)], !shown); }

protected:
    ~grid_layout_base() = default;

private:
    static constexpr std::size_t index(std::int32_t i) { return static_cast<std::size_t>(i); }

    std::array<std::unique_ptr<detail::generic_element>, std::size_t{R} * C> cells_;  // row by row
    std::array<bool, R> row_expands_{};
    std::array<bool, C> column_expands_{};
    std::array<bool, R> row_hidden_{};
    std::array<bool, C> column_hidden_{};
    std::array<std::uint32_t, R> row_values_{};
    std::array<std::uint32_t, C> column_values_{};
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
        if (index < N && children_[index]) children_[index]->visit(element_visitor);
    }
    std::uint32_t current() override { return current_; }

    template <class X>
    void put(std::uint32_t index, X& element) {
        children_[index] = std::make_unique<detail::generic_element_impl<X>>(element);
    }
    void set_current(std::uint32_t index) { this->update(current_, index); }

private:
    std::array<std::unique_ptr<detail::generic_element>, N> children_;
    std::uint32_t current_ = 0;
};

/// A frame with a caption around one inner grid.
template <class Derived, class Grid>
class groupbox_base : public with_view<groupbox_impl> {
public:
    explicit groupbox_base(std::int32_t caption, std::int32_t second_text = 0)
        : caption_(caption), second_text_(second_text) {}

    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    void visit_second_text(custom_pointer string_visitor) override {
        visit_text_of(second_text_, string_visitor);
    }
    void visit_content(custom_pointer element_visitor) override {
        call<&element_visitor_impl::grid_layout>(element_visitor, make_pointer<grid_layout_impl>(content_));
    }
    bool flag() override { return flag_; }

    Grid& content() { return content_; }

protected:
    ~groupbox_base() = default;

private:
    Grid content_;
    std::int32_t caption_;
    std::int32_t second_text_;
    bool flag_ = true;
};

template <std::int32_t R, std::int32_t C>
class groupbox : public groupbox_base<groupbox<R, C>, grid_layout<R, C>> {
public:
    using groupbox_base<groupbox<R, C>, grid_layout<R, C>>::groupbox_base;
};

}  // namespace ox::toolkit
