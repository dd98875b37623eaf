#pragma once
/// Tables and trees of items in columns, with check boxes.
///
/// An item pointer is [lent for the call]; an empty one is the root. Hosts make the items of a table
/// themselves: an object of OX_OUTLINE_ITEM_INDEX_INTERFACE whose `row` is a number below the child count of
/// the root. Where a row is needed the root counts as row 0; where there is no such row it is an empty row:
/// no text, unchecked, not highlighted, and setting it does nothing. Row numbers are those of the bundle,
/// whatever order the host shows.

#include <stdint.h>

#include "ox_pointer.h"

#define OX_OUTLINE_INTERFACE "ox_outline_interface_32"
#define OX_OUTLINE_ITEM_INDEX_INTERFACE "ox_outline_item_index_interface_0"
#define OX_OUTLINE_ITEM_INDEX_VISITOR_INTERFACE "ox_outline_item_index_visitor_interface_0"
#define OX_OUTLINE_CHECKS_INTERFACE "ox_outline_checks_interface_1"
#define OX_OUTLINE_CHECKS_VISITOR_INTERFACE "ox_outline_checks_visitor_interface_1"
#define OX_OUTLINE_COLUMN_VISITOR_INTERFACE "ox_outline_column_visitor_interface_23"
#define OX_STRING_OUTLINE_COLUMN_INTERFACE "ox_string_outline_column_interface_10"
#define OX_BITMAP_OUTLINE_COLUMN_INTERFACE "ox_bitmap_outline_column_interface_5"

// ---- Items ------------------------------------------------------------------------------------------------

/// Names one item. [host implements] [bundle implements]
struct ox_outline_item_index_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Calls the visitor with the parent; in a table that is the root, an empty pointer.
    void (*visit_parent)(const void* table, void* object, ox_pointer item_visitor);
    uint32_t (*row)(const void* table, void* object);
    /// Answers an empty pointer.
    ox_pointer (*reserved_3)(const void* table, void* object);
};

/// [host implements] [bundle implements]
struct ox_outline_item_index_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer item);
};

// ---- Outline ----------------------------------------------------------------------------------------------

/// A table or tree. [bundle implements]
struct ox_outline_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// The meaning of `flag_1`, `flag_2`, `value_8`, `flag_29`, `flag_30` and `index_33` is the host's;
    /// tables answer true, false, 5, true, true and -1.
    bool (*flag_1)(const void* table, void* object);
    bool (*flag_2)(const void* table, void* object);
    /// Calls the visitor with an empty pointer.
    void (*visit_root)(const void* table, void* object, ox_pointer item_visitor);
    uint32_t (*column_count)(const void* table, void* object);
    /// No visit: the outline has no check boxes.
    void (*visit_checks)(const void* table, void* object, ox_pointer outline_checks_visitor);
    void (*visit_column)(const void* table, void* object, uint32_t index, ox_pointer outline_column_visitor);
    size_t (*reserved_7)(const void* table, void* object);
    uint32_t (*value_8)(const void* table, void* object);
    size_t (*reserved_9)(const void* table, void* object);
    size_t (*reserved_10)(const void* table, void* object);
    size_t (*reserved_11)(const void* table, void* object);
    size_t (*reserved_12)(const void* table, void* object);
    /// Calls the visitor with the current item, or with an empty pointer when there is none.
    void (*visit_current_item)(const void* table, void* object, ox_pointer item_visitor);
    /// The user has moved to an item.
    void (*set_current_item)(const void* table, void* object, ox_pointer item);
    size_t (*reserved_15)(const void* table, void* object);
    bool (*is_selected)(const void* table, void* object, ox_pointer item);
    size_t (*reserved_17)(const void* table, void* object);
    /// The user has selected or unselected an item; only tables with multiple selection listen.
    void (*set_selected)(const void* table, void* object, ox_pointer item, bool selected);
    size_t (*reserved_19)(const void* table, void* object);
    size_t (*reserved_20)(const void* table, void* object);
    size_t (*reserved_21)(const void* table, void* object);
    size_t (*reserved_22)(const void* table, void* object);
    size_t (*reserved_23)(const void* table, void* object);
    size_t (*reserved_24)(const void* table, void* object);
    size_t (*reserved_25)(const void* table, void* object);
    /// In a table: true for the root only.
    bool (*has_children)(const void* table, void* object, ox_pointer item);
    /// In a table: the number of rows for the root, 0 for a row.
    uint32_t (*child_count)(const void* table, void* object, ox_pointer item);
    size_t (*reserved_28)(const void* table, void* object);
    bool (*flag_29)(const void* table, void* object);
    bool (*flag_30)(const void* table, void* object);
    size_t (*reserved_31)(const void* table, void* object);
    size_t (*reserved_32)(const void* table, void* object);
    int32_t (*index_33)(const void* table, void* object);
    size_t (*reserved_34)(const void* table, void* object);
    /// An outline view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// Has no interface name. [host implements]
struct ox_outline_view_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*reserved_1)(const void* table, void* object);
    /// The bundle has changed the selection or the current item: read both again.
    void (*selection_changed)(const void* table, void* object);
    /// Rows, cells or check boxes have changed: read the child count of the root and every cell again.
    void (*refresh)(const void* table, void* object);
};

// ---- Check boxes ------------------------------------------------------------------------------------------

/// One box per item. [bundle implements]
struct ox_outline_checks_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*reserved_1)(const void* table, void* object);
    /// Its meaning is the host's; bundles answer false.
    bool (*flag)(const void* table, void* object);
    bool (*state)(const void* table, void* object, ox_pointer item);
    /// The user has clicked a box. The bundle may apply it to all selected items and then tells the outline's
    /// view.
    void (*set_state)(const void* table, void* object, ox_pointer item, bool checked);
};

/// [host implements]
struct ox_outline_checks_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer outline_checks);
};

// ---- Columns ----------------------------------------------------------------------------------------------

/// Receives a column in the slot of its kind. `id` names it in the host's settings and is [lent for the
/// call]. [host implements]
struct ox_outline_column_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*other_1)(const void* table, void* object);
    size_t (*other_2)(const void* table, void* object);
    void (*visit_bitmap_column)(const void* table, void* object, ox_pointer column, const wchar_t* id);
    size_t (*other_4)(const void* table, void* object);
    size_t (*other_5)(const void* table, void* object);
    void (*visit_string_column)(const void* table, void* object, ox_pointer column, const wchar_t* id);
};

/// A column of texts; it lives as long as its outline. [bundle implements]
struct ox_string_outline_column_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*reserved_1)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    size_t (*reserved_3)(const void* table, void* object);
    /// Answers true.
    bool (*reserved_4)(const void* table, void* object);
    void (*visit_cell_hint)(const void* table, void* object, ox_pointer item, ox_pointer string_visitor);
    size_t (*reserved_6)(const void* table, void* object);
    size_t (*reserved_7)(const void* table, void* object);
    size_t (*reserved_8)(const void* table, void* object);
    size_t (*reserved_9)(const void* table, void* object);
    size_t (*reserved_10)(const void* table, void* object);
    /// For a host that sorts by the column: does `a` stand after `b`? False for equal cells.
    bool (*sorts_after)(const void* table, void* object, ox_pointer a, ox_pointer b);
    /// Answers true.
    bool (*reserved_12)(const void* table, void* object);
    size_t (*reserved_13)(const void* table, void* object);
    size_t (*reserved_14)(const void* table, void* object);
    size_t (*reserved_15)(const void* table, void* object);
    void (*visit_cell_text)(const void* table, void* object, ox_pointer item, ox_pointer string_visitor);
    /// The user has edited the cell in place; `text` is [lent for the call].
    void (*set_cell_text)(const void* table, void* object, ox_pointer item, const wchar_t* text);
    bool (*cell_is_editable)(const void* table, void* object, ox_pointer item);
    /// Is the cell to stand out?
    bool (*highlight)(const void* table, void* object, ox_pointer item);
    size_t (*reserved_20)(const void* table, void* object);
    size_t (*reserved_21)(const void* table, void* object);
};

/// A column of small pictures; it lives as long as its outline. [bundle implements]
struct ox_bitmap_outline_column_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*reserved_1)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    size_t (*reserved_3)(const void* table, void* object);
    size_t (*reserved_4)(const void* table, void* object);
    size_t (*reserved_5)(const void* table, void* object);
    size_t (*reserved_6)(const void* table, void* object);
    size_t (*reserved_7)(const void* table, void* object);
    size_t (*reserved_8)(const void* table, void* object);
    void (*visit_cell_image)(const void* table, void* object, ox_pointer item, ox_pointer bitmap_visitor);
    size_t (*reserved_10)(const void* table, void* object);
    size_t (*reserved_11)(const void* table, void* object);
    size_t (*reserved_12)(const void* table, void* object);
    size_t (*reserved_13)(const void* table, void* object);
    size_t (*reserved_14)(const void* table, void* object);
    size_t (*reserved_15)(const void* table, void* object);
};
