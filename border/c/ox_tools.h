#pragma once
/// Commands in toolbars and context menus: a toolbar or menu has tool sets, a tool set has tools.
///
/// Toolbar:  the host visits the tool sets, then the tools of each; they live as long as the toolbar.
/// Menu:     the host visits the tool set and its tools when the menu is opened, which makes the tools.
///           They are the host's: it attaches a view to those it keeps, and ends each by attaching an empty
///           view.

#include <stdint.h>

#include "ox_pointer.h"

#define OX_ACTION_TOOL_INTERFACE "ox_action_tool_interface_0"
#define OX_TOOL_SET_INTERFACE "ox_tool_set_interface_5"
#define OX_TOOL_SET_VISITOR_INTERFACE "ox_tool_set_visitor_interface_5"
#define OX_TOOLBAR_INTERFACE "ox_toolbar_interface_6"
#define OX_CONTEXT_MENU_INTERFACE "ox_context_menu_interface_3"
#define OX_CONTEXT_MENU_VISITOR_INTERFACE "ox_context_menu_visitor_interface_3"

/// One command. [bundle implements]
struct ox_action_tool_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_image)(const void* table, void* object, ox_pointer bitmap_visitor);
    /// Further texts, one visit each.
    void (*visit_extra_texts)(const void* table, void* object, ox_pointer string_visitor);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    void (*visit_hint)(const void* table, void* object, ox_pointer string_visitor);
    /// Answers -1.
    int32_t (*reserved_5)(const void* table, void* object);
    void (*visit_long_text)(const void* table, void* object, ox_pointer string_visitor);
    bool (*enabled)(const void* table, void* object);
    bool (*checked)(const void* table, void* object);
    /// The user has chosen the enabled tool; what it does is done when this returns.
    void (*click)(const void* table, void* object);
    /// An element view. [kept until replaced] An empty one ends a menu's tool: touch it no more.
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// A group of tools. [bundle implements]
struct ox_tool_set_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Calls the visitor's slot of its kind for each tool, in order; none for an empty set.
    void (*visit_tools)(const void* table, void* object, ox_pointer tool_set_visitor);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// Receives the tool sets of a toolbar or menu, and the tools of a set. The other slots, and any behind the
/// last one here, are for kinds of tool without a meaning between today's hosts and bundles. [host
/// implements]
struct ox_tool_set_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_tool_set)(const void* table, void* object, ox_pointer tool_set);
    size_t (*other_2)(const void* table, void* object);
    size_t (*other_3)(const void* table, void* object);
    size_t (*other_4)(const void* table, void* object);
    size_t (*other_5)(const void* table, void* object);
    size_t (*other_6)(const void* table, void* object);
    /// `id` names the tool in the host's settings; it is [lent for the call].
    void (*visit_action_tool)(const void* table, void* object, const wchar_t* id, ox_pointer action_tool);
};

/// [bundle implements]
struct ox_toolbar_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_tool_sets)(const void* table, void* object, ox_pointer tool_set_visitor);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// [bundle implements]
struct ox_context_menu_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Visits the menu's one tool set.
    void (*visit_tool_sets)(const void* table, void* object, ox_pointer tool_set_visitor);
    size_t (*reserved_2)(const void* table, void* object);
    /// An element view. [kept until replaced]
    void (*attach_view)(const void* table, void* object, ox_pointer view);
};

/// [host implements]
struct ox_context_menu_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer context_menu);
};
