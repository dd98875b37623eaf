#pragma once
/// Layouts of an element tree, the visitor that walks it, and the views that elements notify. [ui]

#include <cstdint>

#include "border/binding.h"

namespace ox {

/// Receives an element through the slot of its kind. [host implements]
struct element_visitor_impl : binding<element_visitor_impl, element_visitor> {
    virtual void grid_layout(custom_pointer element) { (void)element; }
    virtual void stack_layout(custom_pointer element) { (void)element; }
    virtual void input(custom_pointer element) { (void)element; }
    virtual void floating_input(custom_pointer element) { (void)element; }
    virtual void multiline_output(custom_pointer element) { (void)element; }
    virtual void button(custom_pointer element) { (void)element; }
    virtual void label(custom_pointer element) { (void)element; }
    virtual void outline(custom_pointer element) { (void)element; }
    virtual void dropdown(custom_pointer element) { (void)element; }
    virtual void groupbox(custom_pointer element) { (void)element; }
    virtual void toolbar(custom_pointer element) { (void)element; }
    /// The kinds of element that this module does not build.
    virtual std::size_t other() { return 0; }

    using table = operations<
        &element_visitor_impl::grid_layout,                                                               // 1
        &element_visitor_impl::other, &element_visitor_impl::other, &element_visitor_impl::stack_layout,  // 4
        &element_visitor_impl::other, &element_visitor_impl::other, &element_visitor_impl::input,         // 7
        &element_visitor_impl::other, &element_visitor_impl::other, &element_visitor_impl::other,
        &element_visitor_impl::other, &element_visitor_impl::floating_input,  // 12
        &element_visitor_impl::other, &element_visitor_impl::other,
        &element_visitor_impl::multiline_output,                       // 15
        &element_visitor_impl::other, &element_visitor_impl::button,   // 17
        &element_visitor_impl::label, &element_visitor_impl::outline,  // 19
        &element_visitor_impl::other, &element_visitor_impl::other, &element_visitor_impl::other,
        &element_visitor_impl::other, &element_visitor_impl::dropdown,     // 24
        &element_visitor_impl::groupbox, &element_visitor_impl::toolbar>;  // 26
};

/// What an element tells its host: read me again. [host implements] [kept until replaced]
struct element_view_slots : binding<element_view_slots> {
    virtual std::size_t reserved() { return 0; }
    virtual void changed() {}
    using table = operations<&element_view_slots::reserved, &element_view_slots::changed>;
};

/// Cells in rows and columns; the host asks within the counts only. [module implements]
struct grid_layout_impl : binding<grid_layout_impl, grid_layout> {
    virtual std::uint32_t layout_value() { return 0; }
    virtual std::int32_t column_count() { return 0; }
    virtual std::int32_t row_count() { return 0; }
    virtual std::int32_t reserved() { return 0; }
    virtual bool column_expands(std::int32_t column) {
        (void)column;
        return false;
    }
    virtual bool row_expands(std::int32_t row) {
        (void)row;
        return false;
    }
    virtual std::uint32_t column_value(std::int32_t column) {
        (void)column;
        return 0;
    }
    virtual std::uint32_t row_value(std::int32_t row) {
        (void)row;
        return 0;
    }
    virtual bool column_shown(std::int32_t column) {
        (void)column;
        return true;
    }
    virtual bool row_shown(std::int32_t row) {
        (void)row;
        return true;
    }
    /// An empty cell visits nothing.
    virtual void visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) {
        (void)column, (void)row, (void)element_visitor;
    }
    virtual void attach_view(custom_pointer view) { (void)view; }

    using table =
        operations<&grid_layout_impl::layout_value, &grid_layout_impl::column_count,
                   &grid_layout_impl::row_count, &grid_layout_impl::reserved, &grid_layout_impl::reserved,
                   &grid_layout_impl::column_expands, &grid_layout_impl::row_expands,
                   &grid_layout_impl::column_value, &grid_layout_impl::row_value,
                   &grid_layout_impl::column_shown, &grid_layout_impl::row_shown,
                   &grid_layout_impl::visit_cell, &grid_layout_impl::attach_view>;
};

/// Alternative panels, of which the current one is shown. [module implements]
struct stack_layout_impl : binding<stack_layout_impl, stack_layout> {
    virtual std::uint32_t child_count() { return 0; }
    virtual void visit_child(std::uint32_t index, custom_pointer element_visitor) {
        (void)index, (void)element_visitor;
    }
    virtual std::uint32_t current() { return 0; }
    virtual void attach_view(custom_pointer view) { (void)view; }

    using table = operations<&stack_layout_impl::child_count, &stack_layout_impl::visit_child,
                             &stack_layout_impl::current, &stack_layout_impl::attach_view>;
};

/// A framed, captioned group around one grid. [module implements]
struct groupbox_impl : binding<groupbox_impl, groupbox> {
    virtual void visit_caption(custom_pointer string_visitor) { (void)string_visitor; }
    virtual void visit_second_text(custom_pointer string_visitor) { (void)string_visitor; }
    virtual void visit_content(custom_pointer element_visitor) { (void)element_visitor; }
    virtual bool flag() { return true; }
    virtual void attach_view(custom_pointer view) { (void)view; }

    using table =
        operations<&groupbox_impl::visit_caption, &groupbox_impl::visit_second_text,
                   &groupbox_impl::visit_content, &groupbox_impl::flag, &groupbox_impl::attach_view>;
};

}  // namespace ox
