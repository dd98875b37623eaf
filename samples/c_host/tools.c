#include "c_host/tools.h"

#include <stdio.h>
#include <stdlib.h>

#include "border/c/ox_controls.h"
#include "border/c/ox_tools.h"
#include "c_common/text_reader.h"
#include "c_host/print.h"

static void take_set(const void* table, void* object, ox_pointer set) {
    (void)table;
    note_part(&((struct tool_list*)object)->sets, set);
}

static void take_tool(const void* table, void* object, const wchar_t* id, ox_pointer tool) {
    struct tool_list* list = object;
    (void)table;
    if (list->tools.count == most_parts || ox_is_empty(tool)) return;
    list->ids[list->tools.count] = copy_text(id);
    note_part(&list->tools, tool);
}

static const struct ox_tool_set_visitor_table list_table = {
    .polymorphic = object_polymorphic,
    .visit_tool_set = take_set,
    .other_2 = spare_number,
    .other_3 = spare_number,
    .other_4 = spare_number,
    .other_5 = spare_number,
    .other_6 = spare_number,
    .visit_action_tool = take_tool,
};
static const struct offered_interface list_interfaces[] = {{OX_TOOL_SET_VISITOR_INTERFACE, &list_table},
                                                           {NULL, NULL}};

struct tool_list new_tool_list(void) {
    const struct tool_list made = {.object = {list_interfaces}};
    return made;
}

void free_tool_list(struct tool_list* list) {
    for (size_t i = 0; i < list->tools.count; ++i) free(list->ids[i]);
}

static void print_tool(const struct tool_list* list, size_t index, int depth) {
    const ox_pointer tool = list->tools.pointers[index];
    const struct ox_action_tool_table* its = OX_TABLE(action_tool, tool);
    indent(depth);
    printf("tool ");
    print_quoted(list->ids[index]);
    print_text_of(tool, its->visit_caption);
    puts(its->enabled(OX_WORDS(tool)) ? "" : " (disabled)");
}

// ---- Toolbars ---------------------------------------------------------------------------------------------

void walk_toolbar(const struct tree_walk* walk, ox_pointer toolbar) {
    struct tool_list bar = new_tool_list();
    OX_TABLE(toolbar, toolbar)->visit_tool_sets(OX_WORDS(toolbar), pointer_to(&bar));
    for (size_t i = 0; i < bar.sets.count; ++i) {
        const ox_pointer set = bar.sets.pointers[i];
        struct tool_list tools = new_tool_list();
        OX_TABLE(tool_set, set)->visit_tools(OX_WORDS(set), pointer_to(&tools));
        for (size_t k = 0; k < tools.tools.count; ++k) {
            const ox_pointer tool = tools.tools.pointers[k];
            print_tool(&tools, k, walk->depth + 1);
            if (walk->views) watch(walk->views, tool, OX_TABLE(action_tool, tool)->attach_view);
        }
        free_tool_list(&tools);
    }
    free_tool_list(&bar);
}

// ---- Menus ------------------------------------------------------------------------------------------------

/// The visitor of a button's menu.
struct menu_visitor {
    struct object object;
    const struct tree_walk* walk;
};

static void visit_menu(const void* table, void* object, ox_pointer menu) {
    const struct tree_walk* walk = ((struct menu_visitor*)object)->walk;
    (void)table;
    if (ox_is_empty(menu)) return;
    indent(walk->depth + 1);
    puts("menu");
    if (walk->parts) note_part(&walk->parts->menus, menu);
}

static const struct ox_context_menu_visitor_table menu_visitor_table = {object_polymorphic, visit_menu};
static const struct offered_interface menu_visitor_interfaces[] = {
    {OX_CONTEXT_MENU_VISITOR_INTERFACE, &menu_visitor_table}, {NULL, NULL}};

void walk_menu(const struct tree_walk* walk, ox_pointer button) {
    struct menu_visitor visitor = {{menu_visitor_interfaces}, walk};
    OX_TABLE(button, button)->visit_menu(OX_WORDS(button), pointer_to(&visitor));
}

void choose_from_menu(ox_pointer menu, size_t chosen) {
    const ox_pointer none = {NULL, NULL};
    struct tool_list list = new_tool_list();
    OX_TABLE(context_menu, menu)->visit_tool_sets(OX_WORDS(menu), pointer_to(&list));
    for (size_t i = 0; i < list.sets.count; ++i) {
        const ox_pointer set = list.sets.pointers[i];
        OX_TABLE(tool_set, set)->visit_tools(OX_WORDS(set), pointer_to(&list));
    }
    for (size_t i = 0; i < list.tools.count; ++i) print_tool(&list, i, 1);
    if (chosen < list.tools.count) {
        const ox_pointer tool = list.tools.pointers[chosen];
        OX_TABLE(action_tool, tool)->click(OX_WORDS(tool));
    }
    for (size_t i = 0; i < list.tools.count; ++i) {  // the entries were made for this opening: that ends them
        const ox_pointer tool = list.tools.pointers[i];
        OX_TABLE(action_tool, tool)->attach_view(OX_WORDS(tool), none);
    }
    free_tool_list(&list);
}
