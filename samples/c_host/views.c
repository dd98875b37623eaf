#include "c_host/views.h"

#include "border/c/ox_layouts.h"
#include "border/c/ox_outlines.h"

static void note(const void* table, void* object) {
    (void)table;
    ((struct views*)object)->told = true;
}

static const struct ox_element_view_table element_view_table = {object_polymorphic, spare_number, note};
static const struct ox_outline_view_table outline_view_table = {object_polymorphic, spare_number, note, note};
/// Views have no interface names.
static const struct offered_interface interfaces[] = {
    {NULL, &element_view_table}, {NULL, &outline_view_table}, {NULL, NULL}};

struct views new_views(void) {
    const struct views made = {.element_view = {interfaces}};
    return made;
}

static void attach_view(struct views* views, ox_pointer element, attach_operation attach, ox_pointer view) {
    if (views->count == most_watched) return;
    views->watched[views->count].element = element;
    views->watched[views->count++].attach = attach;
    attach(OX_WORDS(element), view);
}

void watch(struct views* views, ox_pointer element, attach_operation attach) {
    const ox_pointer view = {&element_view_table, views};
    attach_view(views, element, attach, view);
}

void watch_outline(struct views* views, ox_pointer outline) {
    const ox_pointer view = {&outline_view_table, views};
    attach_view(views, outline, OX_TABLE(outline, outline)->attach_view, view);
}

void end_watching(struct views* views) {
    const ox_pointer none = {NULL, NULL};
    for (; views->count > 0; --views->count)
        views->watched[views->count - 1].attach(OX_WORDS(views->watched[views->count - 1].element), none);
}
