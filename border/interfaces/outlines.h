#pragma once
/// Tables and trees of items in columns, with check boxes. [ui]
/// An item pointer lives for the call that receives it; an empty one is the root.

#include <cstdint>

#include "border/binding.h"

namespace ox {

/// Identifies one item. [host implements] [module implements] [lent for the call]
struct outline_item_index_impl : binding<outline_item_index_impl, outline_item_index> {
    virtual void visit_parent(custom_pointer /*item_visitor*/) {}
    virtual std::uint32_t row() { return 0; }
    virtual custom_pointer reserved() { return {}; }
    using table = operations<&outline_item_index_impl::visit_parent, &outline_item_index_impl::row,
                             &outline_item_index_impl::reserved>;
};

struct outline_item_index_visitor_impl
    : binding<outline_item_index_visitor_impl, outline_item_index_visitor> {
    virtual void visit(custom_pointer /*item*/) {}
    using table = operations<&outline_item_index_visitor_impl::visit>;
};

/// The check boxes of an outline. [module implements]
struct outline_checks_impl : binding<outline_checks_impl, outline_checks> {
    virtual void reserved() {}
    virtual bool flag() { return false; }
    virtual bool state(custom_pointer /*item*/) { return false; }
    virtual void set_state(custom_pointer /*item*/, bool /*checked*/) {}
    using table = operations<&outline_checks_impl::reserved, &outline_checks_impl::flag,
                             &outline_checks_impl::state, &outline_checks_impl::set_state>;
};

struct outline_checks_visitor_impl : binding<outline_checks_visitor_impl, outline_checks_visitor> {
    virtual void visit(custom_pointer /*checks*/) {}
    using table = operations<&outline_checks_visitor_impl::visit>;
};

/// Receives a column through the slot of its kind, with its id. [host implements]
struct outline_column_visitor_impl : binding<outline_column_visitor_impl, outline_column_visitor> {
    virtual void visit_bitmap_column(custom_pointer /*column*/, const wchar_t* /*id*/) {}
    virtual void visit_string_column(custom_pointer /*column*/, const wchar_t* /*id*/) {}
    virtual std::size_t other() { return 0; }
    using table = operations<
        until<&outline_column_visitor_impl::other, 3>, &outline_column_visitor_impl::visit_bitmap_column,
        until<&outline_column_visitor_impl::other, 6>, &outline_column_visitor_impl::visit_string_column>;
};

/// A column of texts. [module implements]
struct string_outline_column_impl : binding<string_outline_column_impl, string_outline_column> {
    virtual std::size_t reserved() { return 0; }
    virtual bool reserved_true() { return true; }
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_cell_hint(custom_pointer /*item*/, custom_pointer /*string_visitor*/) {}
    /// Does `a` sort after `b`?
    virtual bool sorts_after(custom_pointer /*a*/, custom_pointer /*b*/) { return false; }
    virtual void visit_cell_text(custom_pointer /*item*/, custom_pointer /*string_visitor*/) {}
    /// An edit in place.
    virtual void set_cell_text(custom_pointer /*item*/, const wchar_t* /*text*/) {}
    virtual bool cell_is_editable(custom_pointer /*item*/) { return false; }
    virtual bool highlight(custom_pointer /*item*/) { return false; }

    using table = operations<
        &string_outline_column_impl::reserved, &string_outline_column_impl::visit_caption,
        &string_outline_column_impl::reserved, &string_outline_column_impl::reserved_true,
        &string_outline_column_impl::visit_cell_hint, until<&string_outline_column_impl::reserved, 11>,
        &string_outline_column_impl::sorts_after, &string_outline_column_impl::reserved_true,
        until<&string_outline_column_impl::reserved, 16>, &string_outline_column_impl::visit_cell_text,
        &string_outline_column_impl::set_cell_text, &string_outline_column_impl::cell_is_editable,
        &string_outline_column_impl::highlight, until<&string_outline_column_impl::reserved, 22>>;
};

/// A column of small pictures. [module implements]
struct bitmap_outline_column_impl : binding<bitmap_outline_column_impl, bitmap_outline_column> {
    virtual std::size_t reserved() { return 0; }
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_cell_image(custom_pointer /*item*/, custom_pointer /*bitmap_visitor*/) {}

    using table =
        operations<&bitmap_outline_column_impl::reserved, &bitmap_outline_column_impl::visit_caption,
                   until<&bitmap_outline_column_impl::reserved, 9>,
                   &bitmap_outline_column_impl::visit_cell_image,
                   until<&bitmap_outline_column_impl::reserved, 16>>;
};

/// A tree or table of items. Slots without a meaning here answer nothing, 0 or false. [module implements]
/// 1. host reads columns, checks and root   2. asks for items below the child count it was given
/// 3. attaches its view   4. is told to refresh, and begins again at the child count
struct outline_impl : binding<outline_impl, outline> {
    virtual std::size_t reserved() { return 0; }
    virtual bool flag_1() { return false; }
    virtual bool flag_2() { return false; }
    virtual void visit_root(custom_pointer /*item_visitor*/) {}
    virtual std::uint32_t column_count() { return 0; }
    virtual void visit_checks(custom_pointer /*checks_visitor*/) {}
    virtual void visit_column(std::uint32_t /*index*/, custom_pointer /*column_visitor*/) {}
    virtual std::uint32_t value_8() { return 0; }
    virtual void visit_current_item(custom_pointer /*item_visitor*/) {}
    virtual void set_current_item(custom_pointer /*item*/) {}
    virtual bool is_selected(custom_pointer /*item*/) { return false; }
    virtual void set_selected(custom_pointer /*item*/, bool /*selected*/) {}
    virtual bool has_children(custom_pointer /*item*/) { return false; }
    virtual std::uint32_t child_count(custom_pointer /*item*/) { return 0; }
    virtual bool flag_29() { return false; }
    virtual bool flag_30() { return false; }
    virtual std::int32_t index_33() { return -1; }
    virtual void attach_view(custom_pointer /*view*/) {}

    using table =
        operations<&outline_impl::flag_1, &outline_impl::flag_2, &outline_impl::visit_root,
                   &outline_impl::column_count, &outline_impl::visit_checks, &outline_impl::visit_column,
                   &outline_impl::reserved, &outline_impl::value_8, until<&outline_impl::reserved, 13>,
                   &outline_impl::visit_current_item, &outline_impl::set_current_item,
                   &outline_impl::reserved, &outline_impl::is_selected, &outline_impl::reserved,
                   &outline_impl::set_selected, until<&outline_impl::reserved, 26>,
                   &outline_impl::has_children, &outline_impl::child_count, &outline_impl::reserved,
                   &outline_impl::flag_29, &outline_impl::flag_30, until<&outline_impl::reserved, 33>,
                   &outline_impl::index_33, &outline_impl::reserved, &outline_impl::attach_view>;
};

/// The host's view of an outline. [host implements] [kept until replaced]
struct outline_view_slots : binding<outline_view_slots> {
    static constexpr const char* label = "outline view";
    virtual std::size_t reserved() { return 0; }
    virtual void selection_changed() {}
    virtual void refresh() {}
    using table = operations<&outline_view_slots::reserved, &outline_view_slots::selection_changed,
                             &outline_view_slots::refresh>;
};

}  // namespace ox
