#include "c_host/outline.h"

#include <stdio.h>
#include <stdlib.h>

#include "border/c/ox_outlines.h"
#include "c_common/text_reader.h"
#include "c_host/print.h"
#include "c_host/tree.h"

static const ox_pointer root;  ///< the empty item

// ---- Rows
// ---------------------------------------------------------------------------------------------------

/// Names a row to the bundle, for one call.
struct row_item {
    struct object object;
    uint32_t row;
};

static void visit_parent(const void* table, void* object, ox_pointer visitor) {
    (void)table, (void)object;
    if (!ox_is_empty(visitor)) OX_TABLE(outline_item_index_visitor, visitor)->visit(OX_WORDS(visitor), root);
}

static uint32_t row_of(const void* table, void* object) {
    (void)table;
    return ((struct row_item*)object)->row;
}

static ox_pointer no_pointer(const void* table, void* object) {
    (void)table, (void)object;
    return root;
}

static const struct ox_outline_item_index_table item_table = {object_polymorphic, visit_parent, row_of,
                                                              no_pointer};
static const struct offered_interface item_interfaces[] = {{OX_OUTLINE_ITEM_INDEX_INTERFACE, &item_table},
                                                           {NULL, NULL}};

static struct row_item item_of(uint32_t row) {
    const struct row_item item = {{item_interfaces}, row};
    return item;
}

static uint32_t row_count(ox_pointer outline) {
    return OX_TABLE(outline, outline)->child_count(OX_WORDS(outline), root);
}

// ---- Columns and check boxes
// --------------------------------------------------------------------------------

struct column_list {
    struct object object;
    struct pointer_list strings;
};

static void take_bitmap_column(const void* table, void* object, ox_pointer column, const wchar_t* id) {
    (void)table, (void)object, (void)column, (void)id;  // pictures are not for text
}

static void take_string_column(const void* table, void* object, ox_pointer column, const wchar_t* id) {
    (void)table, (void)id;
    note_part(&((struct column_list*)object)->strings, column);
}

static const struct ox_outline_column_visitor_table column_list_table = {
    .polymorphic = object_polymorphic,
    .other_1 = spare_number,
    .other_2 = spare_number,
    .visit_bitmap_column = take_bitmap_column,
    .other_4 = spare_number,
    .other_5 = spare_number,
    .visit_string_column = take_string_column,
};
static const struct offered_interface column_list_interfaces[] = {
    {OX_OUTLINE_COLUMN_VISITOR_INTERFACE, &column_list_table}, {NULL, NULL}};

struct checks_taker {
    struct object object;
    ox_pointer checks;
};

static void take_checks(const void* table, void* object, ox_pointer checks) {
    (void)table;
    ((struct checks_taker*)object)->checks = checks;
}

static const struct ox_outline_checks_visitor_table checks_taker_table = {object_polymorphic, take_checks};
static const struct offered_interface checks_taker_interfaces[] = {
    {OX_OUTLINE_CHECKS_VISITOR_INTERFACE, &checks_taker_table}, {NULL, NULL}};

/// Empty when the outline has no check boxes.
static ox_pointer checks_of(ox_pointer outline) {
    struct checks_taker taker = {{checks_taker_interfaces}, {NULL, NULL}};
    OX_TABLE(outline, outline)->visit_checks(OX_WORDS(outline), pointer_to(&taker));
    return taker.checks;
}

// ---- What the others need
// -----------------------------------------------------------------------------------

static void print_row(uint32_t row, ox_pointer checks, const struct pointer_list* columns, int depth) {
    struct row_item item = item_of(row);
    indent(depth);
    printf("row");
    if (!ox_is_empty(checks))
        printf(OX_TABLE(outline_checks, checks)->state(OX_WORDS(checks), pointer_to(&item)) ? " [x]"
                                                                                            : " [ ]");
    for (size_t i = 0; i < columns->count; ++i) {
        const ox_pointer column = columns->pointers[i];
        const struct ox_string_outline_column_table* its = OX_TABLE(string_outline_column, column);
        struct text_reader text = new_text_reader();
        its->visit_cell_text(OX_WORDS(column), pointer_to(&item), pointer_to(&text));
        printf(its->highlight(OX_WORDS(column), pointer_to(&item)) ? " * " : "   ");
        print_quoted(text.text);
        free(text.text);
    }
    putchar('\n');
}

void walk_outline(const struct tree_walk* walk, ox_pointer outline) {
    const struct ox_outline_table* its = OX_TABLE(outline, outline);
    struct column_list columns = {.object = {column_list_interfaces}};
    for (uint32_t i = 0; i < its->column_count(OX_WORDS(outline)); ++i)
        its->visit_column(OX_WORDS(outline), i, pointer_to(&columns));
    for (size_t i = 0; i < columns.strings.count; ++i) {
        const ox_pointer column = columns.strings.pointers[i];
        print_text_of(column, OX_TABLE(string_outline_column, column)->visit_caption);
    }
    putchar('\n');
    for (uint32_t row = 0; row < row_count(outline); ++row)
        print_row(row, checks_of(outline), &columns.strings, walk->depth + 1);
    if (walk->views) watch_outline(walk->views, outline);
    if (walk->parts) note_part(&walk->parts->outlines, outline);
}

void check_all_rows(ox_pointer outline) {
    const ox_pointer checks = checks_of(outline);
    if (ox_is_empty(checks)) return;
    for (uint32_t row = 0; row < row_count(outline); ++row) {
        struct row_item item = item_of(row);
        OX_TABLE(outline_checks, checks)->set_state(OX_WORDS(checks), pointer_to(&item), true);
    }
}
