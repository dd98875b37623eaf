#pragma once
/// The controls. Each is described by the bundle, drawn by the host, and works as ox_layouts.h says; the
/// views are element views, [kept until replaced]. Where the user changes something the host calls the setter
/// and then reads the state again: the bundle may have refused or changed more. [bundle implements]

#include <stdint.h>

#include "ox_pointer.h"

#define OX_LABEL_INTERFACE "ox_label_interface_2"
#define OX_BUTTON_INTERFACE "ox_button_interface_4"
#define OX_INPUT_INTERFACE "ox_input_interface_8"
#define OX_TEXT_SELECTION_INTERFACE "ox_text_selection_interface_0"
#define OX_FLOATING_INPUT_INTERFACE "ox_floating_input_interface_7"
#define OX_DROPDOWN_INTERFACE "ox_dropdown_interface_3"
#define OX_MULTILINE_OUTPUT_INTERFACE "ox_multiline_output_interface_1"

/// A line of text beside a control.
struct ox_label_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// False: greyed, as its control is.
    bool (*enabled)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

struct ox_button_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_image)(const void* table, void* object, ox_pointer bitmap_visitor);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    void (*visit_hint)(const void* table, void* object, ox_pointer string_visitor);
    /// Calls the visitor with a context menu (ox_tools.h) if the button drops one down.
    void (*visit_menu)(const void* table, void* object, ox_pointer context_menu_visitor);
    bool (*enabled)(const void* table, void* object);
    /// The meaning of flags 2 and 4 is the host's; bundles answer false.
    bool (*flag_2)(const void* table, void* object);
    /// Each click inverts it; plain push buttons do not show it.
    bool (*checked)(const void* table, void* object);
    bool (*flag_4)(const void* table, void* object);
    /// The user has pressed the enabled button; what it does is done when this returns. It may have shown
    /// dialogs and changed the tree.
    void (*click)(const void* table, void* object);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// One line of text to edit.
struct ox_input_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_text)(const void* table, void* object, ox_pointer string_visitor);
    /// Usually none: a label stands beside it.
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    bool (*enabled)(const void* table, void* object);
    /// The meaning of the next three is the host's; bundles answer false, false and 0.
    bool (*flag_2)(const void* table, void* object);
    bool (*flag_3)(const void* table, void* object);
    uint32_t (*value)(const void* table, void* object);
    /// An OX_TEXT_SELECTION_INTERFACE pointer, or empty.
    ox_pointer (*text_selection)(const void* table, void* object);
    /// The user has changed the text, perhaps by one letter; it is [lent for the call].
    void (*set_text)(const void* table, void* object, const wchar_t* text);
    /// The user has finished typing: the bundle acts on the text. False when it does not accept it.
    bool (*commit)(const void* table, void* object);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// A number to edit.
struct ox_floating_input_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    double (*value)(const void* table, void* object);
    /// Both ends belong to the range.
    double (*minimum)(const void* table, void* object);
    double (*maximum)(const void* table, void* object);
    /// Decimal places to show.
    double (*decimals)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    bool (*enabled)(const void* table, void* object);
    bool (*read_only)(const void* table, void* object);
    /// False when the value was refused; the old one then stands.
    bool (*set_value)(const void* table, void* object, double proposed);
    size_t (*reserved_9)(const void* table, void* object);
    size_t (*reserved_10)(const void* table, void* object);
    size_t (*reserved_11)(const void* table, void* object);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// Index of a drop-down in which nothing is current.
#define OX_NO_ITEM 0xFFFFFFFFu

/// A list of texts, of which one or none is current.
struct ox_dropdown_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    uint32_t (*item_count)(const void* table, void* object);
    void (*visit_item)(const void* table, void* object, uint32_t index, ox_pointer string_visitor);
    void (*reserved_3)(const void* table, void* object);
    /// A text to show in place of the current item's; not visited or empty when there is none.
    void (*visit_text)(const void* table, void* object, ox_pointer string_visitor);
    /// Its meaning is the host's.
    uint32_t (*value)(const void* table, void* object);
    bool (*enabled)(const void* table, void* object);
    /// OX_NO_ITEM when there is none.
    uint32_t (*current)(const void* table, void* object);
    /// The user has chosen an item, perhaps the current one again.
    void (*select)(const void* table, void* object, uint32_t index);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// Lines of text to read.
struct ox_multiline_output_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_text)(const void* table, void* object, ox_pointer string_visitor);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    /// Copies the element's font into a font object of the host (ox_fnt_type_assign); false when it has none
    /// of its own.
    bool (*copy_font)(const void* table, void* object, void* destination_font);
    bool (*reserved_4)(const void* table, void* object);
    bool (*enabled)(const void* table, void* object);
    /// The meaning of these two is the host's; bundles usually answer 20 and 7.
    uint32_t (*first_value)(const void* table, void* object);
    uint32_t (*second_value)(const void* table, void* object);
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};
