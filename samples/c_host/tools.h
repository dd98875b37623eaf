#pragma once
/// Tools of toolbars and context menus.

#include "c_host/tree.h"

/// Receives tool sets, and the tools of a set with their ids.
struct tool_list {
    struct object object;
    struct pointer_list sets, tools;
    wchar_t* ids[most_parts];
};

struct tool_list new_tool_list(void);
void free_tool_list(struct tool_list* list);

/// Opens a context menu, prints its entries, clicks number `chosen` (from 0) if there is one, and closes it.
void choose_from_menu(ox_pointer menu, size_t chosen);
