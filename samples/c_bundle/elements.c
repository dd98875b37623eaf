#include "c_bundle/elements.h"

#include <stdlib.h>
#include <wchar.h>

#include "border/c/ox_controls.h"
#include "border/c/ox_layouts.h"
#include "c_common/text_reader.h"

static const ox_pointer nothing;

static uint32_t zero(const void* table, void* object) {
    (void)table, (void)object;
    return 0;
}

// ---- Label ------------------------------------------------------------------------------------------------

static void visit_label(const void* table, void* object, ox_pointer string_visitor) {
    (void)table;
    visit_text(((struct label*)object)->caption, string_visitor);
}

static void attach_label_view(const void* table, void* object, ox_pointer view) {
    (void)table;
    ((struct label*)object)->view = view;
}

static const struct ox_label_table label_table = {
    .polymorphic = object_polymorphic,
    .enabled = always_true,
    .visit_caption = visit_label,
    .attach_view = attach_label_view,
};
static const struct offered_interface label_interfaces[] = {{OX_LABEL_INTERFACE, &label_table}, {NULL, NULL}};

// ---- Input ------------------------------------------------------------------------------------------------

const wchar_t* input_text(const struct input* input) { return input->text ? input->text : L""; }

static void visit_input(const void* table, void* object, ox_pointer string_visitor) {
    (void)table;
    deliver_text(input_text(object), string_visitor);
}

static ox_pointer no_selection(const void* table, void* object) {
    (void)table, (void)object;
    return nothing;
}

static void set_text(const void* table, void* object, const wchar_t* text) {
    struct input* self = object;
    const ox_pointer view = self->view;
    (void)table;
    if (wcscmp(text ? text : L"", input_text(self)) == 0) return;
    wchar_t* copy = copy_text(text);
    free(self->text);
    self->text = copy;
    if (!ox_is_empty(view)) OX_TABLE(element_view, view)->changed(OX_WORDS(view));
}

static void attach_input_view(const void* table, void* object, ox_pointer view) {
    (void)table;
    ((struct input*)object)->view = view;
}

static const struct ox_input_table input_table = {
    .polymorphic = object_polymorphic,
    .visit_text = visit_input,
    .visit_caption = ignore_pointer,
    .enabled = always_true,
    .flag_2 = always_false,
    .flag_3 = always_false,
    .value = zero,
    .text_selection = no_selection,
    .set_text = set_text,
    .commit = always_true,  // the text is read when "Apply" is pressed
    .attach_view = attach_input_view,
};
static const struct offered_interface input_interfaces[] = {{OX_INPUT_INTERFACE, &input_table}, {NULL, NULL}};

// ---- The grid of both
// ---------------------------------------------------------------------------------------

static int32_t two_columns(const void* table, void* object) {
    (void)table, (void)object;
    return 2;
}

static int32_t one_row(const void* table, void* object) {
    (void)table, (void)object;
    return 1;
}

static int32_t spare_integer(const void* table, void* object) {
    (void)table, (void)object;
    return 0;
}

static bool input_column_expands(const void* table, void* object, int32_t column) {
    (void)table, (void)object;
    return column == 1;
}

static bool no_row_expands(const void* table, void* object, int32_t row) {
    (void)table, (void)object, (void)row;
    return false;
}

static uint32_t no_value(const void* table, void* object, int32_t index) {
    (void)table, (void)object, (void)index;
    return 0;
}

static bool shown(const void* table, void* object, int32_t index) {
    (void)table, (void)object, (void)index;
    return true;
}

static void visit_cell(const void* table, void* object, int32_t column, int32_t row, ox_pointer visitor) {
    struct labelled_input* self = object;
    (void)table;
    if (ox_is_empty(visitor) || row != 0) return;
    const struct ox_element_visitor_table* visit = OX_TABLE(element_visitor, visitor);
    if (column == 0) visit->label(OX_WORDS(visitor), pointer_to(&self->label));
    if (column == 1) visit->input(OX_WORDS(visitor), pointer_to(&self->input));
}

static void attach_grid_view(const void* table, void* object, ox_pointer view) {
    (void)table;
    ((struct labelled_input*)object)->view = view;
}

static const struct ox_grid_layout_table grid_table = {
    .polymorphic = object_polymorphic,
    .layout_value = zero,
    .column_count = two_columns,
    .row_count = one_row,
    .reserved_4 = spare_integer,
    .reserved_5 = spare_integer,
    .column_expands = input_column_expands,
    .row_expands = no_row_expands,
    .column_value = no_value,
    .row_value = no_value,
    .column_shown = shown,
    .row_shown = shown,
    .visit_cell = visit_cell,
    .attach_view = attach_grid_view,
};
static const struct offered_interface grid_interfaces[] = {{OX_GRID_LAYOUT_INTERFACE, &grid_table},
                                                           {NULL, NULL}};

void make_labelled_input(struct labelled_input* element, enum text_id caption) {
    const struct labelled_input made = {{grid_interfaces},
                                        {{label_interfaces}, caption, nothing},
                                        {{input_interfaces}, NULL, nothing},
                                        nothing};
    *element = made;
}

void end_labelled_input(struct labelled_input* element) { free(element->input.text); }
