#include "c_bundle/button_box.h"

#include "border/c/ox_dialogs.h"
#include "c_bundle/texts.h"

enum { apply_button, close_button, button_count };

static void attach_first_view(const void* table, void* object, ox_pointer view) {
    (void)table;
    ((struct button_box*)object)->views[0] = view;
}

static void attach_second_view(const void* table, void* object, ox_pointer view) {
    (void)table;
    ((struct button_box*)object)->views[1] = view;
}

static int32_t count(const void* table, void* object) {
    (void)table, (void)object;
    return button_count;
}

static void visit_caption(const void* table, void* object, int32_t index, ox_pointer string_visitor) {
    (void)table, (void)object;
    if (index == apply_button) visit_text(text_apply, string_visitor);
    if (index == close_button) visit_text(text_close, string_visitor);
}

static bool enabled(const void* table, void* object, int32_t index) {
    (void)table, (void)object, (void)index;
    return true;
}

static bool click(const void* table, void* object, int32_t index) {
    struct button_box* self = object;
    (void)table;
    if (index == apply_button) self->apply(self->context);
    return index < 0 || index == close_button;
}

static const struct ox_button_box_table button_box_table = {
    .polymorphic = object_polymorphic,
    .attach_first_view = attach_first_view,
    .attach_second_view = attach_second_view,
    .count = count,
    .visit_caption = visit_caption,
    .enabled = enabled,
    .click = click,
    .default_index = minus_one,
    .second_index = minus_one,
};
static const struct offered_interface interfaces[] = {{OX_BUTTON_BOX_INTERFACE, &button_box_table},
                                                      {NULL, NULL}};

struct button_box new_button_box(void (*apply)(void* context), void* context) {
    const struct button_box made = {{interfaces}, apply, context, {{NULL, NULL}, {NULL, NULL}}};
    return made;
}
