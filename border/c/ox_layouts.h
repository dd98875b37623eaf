#pragma once
/// Element trees: the bundle describes what a dialog shows, the host walks the description and draws it.
///
/// For each element the host 1. receives its pointer in the slot of its kind, 2. reads its state, 3. attaches
/// a view, 4. is told `changed` once after each change, when the new state is complete, and reads the state
/// again. Attaching an empty view ends the telling. Elements live as long as the dialog that they belong to;
/// a view must live until it is replaced.

#include <stdint.h>

#include "ox_pointer.h"

#define OX_ELEMENT_VISITOR_INTERFACE "ox_element_visitor_interface_92"
#define OX_GRID_LAYOUT_INTERFACE "ox_grid_layout_interface_91"
#define OX_STACK_LAYOUT_INTERFACE "ox_stack_layout_interface_67"
#define OX_GROUPBOX_INTERFACE "ox_groupbox_interface_92"

/// Receives an element in the slot of its kind. The kinds of the other slots, and of any behind the last one
/// here, have no meaning between today's hosts and bundles. [host implements]
struct ox_element_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Also whatever is composed of other elements.
    void (*grid_layout)(const void* table, void* object, ox_pointer element);
    size_t (*other_2)(const void* table, void* object);
    size_t (*other_3)(const void* table, void* object);
    void (*stack_layout)(const void* table, void* object, ox_pointer element);
    size_t (*other_5)(const void* table, void* object);
    size_t (*other_6)(const void* table, void* object);
    void (*input)(const void* table, void* object, ox_pointer element);
    size_t (*other_8)(const void* table, void* object);
    size_t (*other_9)(const void* table, void* object);
    size_t (*other_10)(const void* table, void* object);
    size_t (*other_11)(const void* table, void* object);
    void (*floating_input)(const void* table, void* object, ox_pointer element);
    size_t (*other_13)(const void* table, void* object);
    size_t (*other_14)(const void* table, void* object);
    void (*multiline_output)(const void* table, void* object, ox_pointer element);
    size_t (*other_16)(const void* table, void* object);
    void (*button)(const void* table, void* object, ox_pointer element);
    void (*label)(const void* table, void* object, ox_pointer element);
    void (*outline)(const void* table, void* object, ox_pointer element);
    size_t (*other_20)(const void* table, void* object);
    size_t (*other_21)(const void* table, void* object);
    size_t (*other_22)(const void* table, void* object);
    size_t (*other_23)(const void* table, void* object);
    void (*dropdown)(const void* table, void* object, ox_pointer element);
    void (*groupbox)(const void* table, void* object, ox_pointer element);
    void (*toolbar)(const void* table, void* object, ox_pointer element);
};

/// What elements and tools tell their host. Has no interface name; an outline has a view of its own kind
/// (ox_outlines.h). [host implements]
struct ox_element_view_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*reserved_1)(const void* table, void* object);
    /// Something that the host sees of the element has changed. The host may detach the view from inside.
    void (*changed)(const void* table, void* object);
};

/// Cells in rows and columns, each with one element or none. The host asks below the counts. A label stands
/// in the cell to the left of its control. [bundle implements]
struct ox_grid_layout_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// 1 for a row or column of buttons of equal size, else 0.
    uint32_t (*layout_value)(const void* table, void* object);
    int32_t (*column_count)(const void* table, void* object);
    int32_t (*row_count)(const void* table, void* object);
    int32_t (*reserved_4)(const void* table, void* object);
    int32_t (*reserved_5)(const void* table, void* object);
    /// Does the column or row take up free space?
    bool (*column_expands)(const void* table, void* object, int32_t column);
    bool (*row_expands)(const void* table, void* object, int32_t row);
    /// 1 in such a layout for columns of equal width or rows of equal height, else 0.
    uint32_t (*column_value)(const void* table, void* object, int32_t column);
    uint32_t (*row_value)(const void* table, void* object, int32_t row);
    /// Is the column or row visible? Bundles hide rows by answering false and telling the grid's view.
    bool (*column_shown)(const void* table, void* object, int32_t column);
    bool (*row_shown)(const void* table, void* object, int32_t row);
    /// An empty cell does not visit; it keeps its place.
    void (*visit_cell)(const void* table, void* object, int32_t column, int32_t row,
                       ox_pointer element_visitor);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// Alternative panels, of which the current one is visible. [bundle implements]
struct ox_stack_layout_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    uint32_t (*child_count)(const void* table, void* object);
    void (*visit_child)(const void* table, void* object, uint32_t index, ox_pointer element_visitor);
    /// Index of the visible panel.
    uint32_t (*current)(const void* table, void* object);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// A frame with a caption around one grid. [bundle implements]
struct ox_groupbox_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    /// A hint, say.
    void (*visit_second_text)(const void* table, void* object, ox_pointer string_visitor);
    /// Calls the visitor's `grid_layout` with the grid inside.
    void (*visit_content)(const void* table, void* object, ox_pointer element_visitor);
    /// Its meaning is the host's; bundles answer true.
    bool (*flag)(const void* table, void* object);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};
