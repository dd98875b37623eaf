#pragma once
/// Layouts of an element tree, the visitor that walks it, and the views that elements notify. [ui]

#include <cstdint>

#include "border/binding.h"

namespace ox {

/// Receives an element through the slot of its kind. [host implements] [lent for the call]
struct element_visitor_impl : binding<element_visitor_impl, element_visitor> {
#define OX_ELEMENT(words, slot, caption) \
    virtual void words(custom_pointer /*element*/) {}
#include "border/element_kinds.inc"
#undef OX_ELEMENT
    /// The kinds of element that nobody here builds.
    virtual std::size_t other() { return 0; }

    using table = operations<until<&element_visitor_impl::other, 1>
#define OX_ELEMENT(words, slot, caption) \
    , until<&element_visitor_impl::other, slot>, &element_visitor_impl::words
#include "border/element_kinds.inc"
#undef OX_ELEMENT
                             >;
};

/// What an element tells its host: read me again. [host implements] [kept until replaced]
struct element_view_slots : binding<element_view_slots> {
    static constexpr const char* label = "element view";
    virtual std::size_t reserved() { return 0; }
    virtual void changed() {}
    using table = operations<&element_view_slots::reserved, &element_view_slots::changed>;
};

/// Cells in rows and columns. [module implements]
/// 1. host reads the counts   2. what each row and column wants   3. visits the cells, within the counts only
/// 4. attaches its view   5. is told of changes, and begins again
struct grid_layout_impl : binding<grid_layout_impl, grid_layout> {
    virtual std::uint32_t layout_value() { return 0; }
    virtual std::int32_t column_count() { return 0; }
    virtual std::int32_t row_count() { return 0; }
    virtual std::int32_t reserved() { return 0; }
    /// Takes up free space.
    virtual bool column_expands(std::int32_t /*column*/) { return false; }
    virtual bool row_expands(std::int32_t /*row*/) { return false; }
    virtual std::uint32_t column_value(std::int32_t /*column*/) { return 0; }
    virtual std::uint32_t row_value(std::int32_t /*row*/) { return 0; }
    /// A hidden row or column leaves no gap.
    virtual bool column_shown(std::int32_t /*column*/) { return true; }
    virtual bool row_shown(std::int32_t /*row*/) { return true; }
    /// An empty cell visits nothing.
    virtual void visit_cell(std::int32_t /*column*/, std::int32_t /*row*/,
                            custom_pointer /*element_visitor*/) {}
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&grid_layout_impl::layout_value, &grid_layout_impl::column_count,
                             &grid_layout_impl::row_count, until<&grid_layout_impl::reserved, 6>,
                             &grid_layout_impl::column_expands, &grid_layout_impl::row_expands,
                             &grid_layout_impl::column_value, &grid_layout_impl::row_value,
                             &grid_layout_impl::column_shown, &grid_layout_impl::row_shown,
                             &grid_layout_impl::visit_cell, &grid_layout_impl::attach_view>;
};

/// Alternative panels, of which the current one is shown. [module implements]
struct stack_layout_impl : binding<stack_layout_impl, stack_layout> {
    virtual std::uint32_t child_count() { return 0; }
    virtual void visit_child(std::uint32_t /*index*/, custom_pointer /*element_visitor*/) {}
    virtual std::uint32_t current() { return 0; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table = operations<&stack_layout_impl::child_count, &stack_layout_impl::visit_child,
                             &stack_layout_impl::current, &stack_layout_impl::attach_view>;
};

/// A framed, captioned group around one grid. [module implements]
struct groupbox_impl : binding<groupbox_impl, groupbox> {
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_second_text(custom_pointer /*string_visitor*/) {}
    virtual void visit_content(custom_pointer /*element_visitor*/) {}
    virtual bool flag() { return true; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table =
        operations<&groupbox_impl::visit_caption, &groupbox_impl::visit_second_text,
                   &groupbox_impl::visit_content, &groupbox_impl::flag, &groupbox_impl::attach_view>;
};

}  // namespace ox
