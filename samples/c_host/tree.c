#include "c_host/tree.h"

#include <stdio.h>
#include <stdlib.h>

#include "border/c/ox_controls.h"
#include "border/c/ox_layouts.h"
#include "border/c/ox_tools.h"
#include "c_common/text_reader.h"
#include "c_host/print.h"

static struct tree_walk deeper(const struct tree_walk* walk) {
    struct tree_walk next = *walk;
    ++next.depth;
    return next;
}

static const struct tree_walk* begin(void* object, const char* kind) {
    const struct tree_walk* walk = object;
    indent(walk->depth);
    printf("%s", kind);
    return walk;
}

static void end(const struct tree_walk* walk, ox_pointer element, attach_operation attach, bool enabled) {
    puts(enabled ? "" : " (disabled)");
    if (walk->views && attach) watch(walk->views, element, attach);
}

void note_part(struct pointer_list* list, ox_pointer part) {
    if (list->count < most_parts && !ox_is_empty(part)) list->pointers[list->count++] = part;
}

// ---- Layouts --------------------------------------------------------------------------------------------

static void grid_layout(const void* table, void* object, ox_pointer grid) {
    (void)table;
    if (ox_is_empty(grid)) return;
    const struct ox_grid_layout_table* its = OX_TABLE(grid_layout, grid);
    const struct tree_walk* walk = begin(object, "grid");
    const int32_t columns = its->column_count(OX_WORDS(grid)), rows = its->row_count(OX_WORDS(grid));
    printf(", %d x %d", (int)columns, (int)rows);  // across x down
    end(walk, grid, its->attach_view, true);
    struct tree_walk cells = deeper(walk);
    for (int32_t row = 0; row < rows; ++row)
        for (int32_t column = 0; column < columns; ++column)
            if (its->row_shown(OX_WORDS(grid), row) && its->column_shown(OX_WORDS(grid), column))
                its->visit_cell(OX_WORDS(grid), column, row, pointer_to(&cells));
}

static void stack_layout(const void* table, void* object, ox_pointer stack) {
    (void)table;
    if (ox_is_empty(stack)) return;
    const struct ox_stack_layout_table* its = OX_TABLE(stack_layout, stack);
    const struct tree_walk* walk = begin(object, "panels");
    const uint32_t current = its->current(OX_WORDS(stack));
    printf(", number %u of %u", (unsigned)current + 1, (unsigned)its->child_count(OX_WORDS(stack)));
    end(walk, stack, its->attach_view, true);
    struct tree_walk panel = deeper(walk);
    its->visit_child(OX_WORDS(stack), current, pointer_to(&panel));
}

static void groupbox(const void* table, void* object, ox_pointer group) {
    (void)table;
    if (ox_is_empty(group)) return;
    const struct ox_groupbox_table* its = OX_TABLE(groupbox, group);
    const struct tree_walk* walk = begin(object, "group");
    print_text_of(group, its->visit_caption);
    end(walk, group, its->attach_view, true);
    struct tree_walk content = deeper(walk);
    its->visit_content(OX_WORDS(group), pointer_to(&content));
}

// ---- Controls -------------------------------------------------------------------------------------------

static void label(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_label_table* its = OX_TABLE(label, element);
    const struct tree_walk* walk = begin(object, "label");
    print_text_of(element, its->visit_caption);
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
}

static void button(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_button_table* its = OX_TABLE(button, element);
    const struct tree_walk* walk = begin(object, "button");
    print_text_of(element, its->visit_caption);
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
    walk_menu(walk, element);
}

static void input(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_input_table* its = OX_TABLE(input, element);
    const struct tree_walk* walk = begin(object, "input");
    print_text_of(element, its->visit_caption);
    print_text_of(element, its->visit_text);
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
    if (walk->parts) note_part(&walk->parts->inputs, element);
}

static void floating_input(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_floating_input_table* its = OX_TABLE(floating_input, element);
    const struct tree_walk* walk = begin(object, "number");
    print_text_of(element, its->visit_caption);
    printf(" %.*f in %g to %g", (int)its->decimals(OX_WORDS(element)), its->value(OX_WORDS(element)),
           its->minimum(OX_WORDS(element)), its->maximum(OX_WORDS(element)));
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
}

static void dropdown(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_dropdown_table* its = OX_TABLE(dropdown, element);
    const struct tree_walk* walk = begin(object, "drop-down");
    print_text_of(element, its->visit_text);
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
    for (uint32_t i = 0; i < its->item_count(OX_WORDS(element)); ++i) {
        struct text_reader item = new_text_reader();
        indent(walk->depth + 1);
        printf(i == its->current(OX_WORDS(element)) ? "* " : "- ");
        its->visit_item(OX_WORDS(element), i, pointer_to(&item));
        print_quoted(item.text);
        putchar('\n');
        free(item.text);
    }
}

static void multiline_output(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct ox_multiline_output_table* its = OX_TABLE(multiline_output, element);
    const struct tree_walk* walk = begin(object, "text");
    print_text_of(element, its->visit_caption);
    print_text_of(element, its->visit_text);
    end(walk, element, its->attach_view, its->enabled(OX_WORDS(element)));
}

static void outline(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    walk_outline(begin(object, "table"), element);
}

static void toolbar(const void* table, void* object, ox_pointer element) {
    (void)table;
    if (ox_is_empty(element)) return;
    const struct tree_walk* walk = begin(object, "toolbar");
    end(walk, element, OX_TABLE(toolbar, element)->attach_view, true);
    walk_toolbar(walk, element);
}

static const struct ox_element_visitor_table visitor_table = {
    .polymorphic = object_polymorphic,
    .grid_layout = grid_layout,
    .other_2 = spare_number,
    .other_3 = spare_number,
    .stack_layout = stack_layout,
    .other_5 = spare_number,
    .other_6 = spare_number,
    .input = input,
    .other_8 = spare_number,
    .other_9 = spare_number,
    .other_10 = spare_number,
    .other_11 = spare_number,
    .floating_input = floating_input,
    .other_13 = spare_number,
    .other_14 = spare_number,
    .multiline_output = multiline_output,
    .other_16 = spare_number,
    .button = button,
    .label = label,
    .outline = outline,
    .other_20 = spare_number,
    .other_21 = spare_number,
    .other_22 = spare_number,
    .other_23 = spare_number,
    .dropdown = dropdown,
    .groupbox = groupbox,
    .toolbar = toolbar,
};
static const struct offered_interface interfaces[] = {{OX_ELEMENT_VISITOR_INTERFACE, &visitor_table},
                                                      {NULL, NULL}};

void walk_tree(ox_pointer root, int depth, struct views* views, struct parts* parts) {
    struct tree_walk walk = {{interfaces}, depth, views, parts};
    grid_layout(&visitor_table, &walk, root);
}
