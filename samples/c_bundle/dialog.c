#include "c_bundle/dialog.h"

#include <stdlib.h>
#include <wchar.h>

#include "border/c/ox_dialogs.h"
#include "border/c/ox_host_functions.h"
#include "c_bundle/button_box.h"
#include "c_bundle/elements.h"
#include "c_bundle/survey.h"

/// The docker, with what it shows.
struct dialog {
    struct object object;
    struct labelled_input projection;
    ox_pointer host;
};

static void visit_caption(const void* table, void* object, ox_pointer string_visitor) {
    (void)table, (void)object;
    visit_text(text_profile_projections, string_visitor);
}

static ox_pointer root(const void* table, void* object) {
    (void)table;
    return pointer_to(&((struct dialog*)object)->projection);
}

static uint32_t all_bits(const void* table, void* object) {
    (void)table, (void)object;
    return 0xFFFFFFFF;
}

static void attach(const void* table, void* object, ox_pointer host) {
    (void)table;
    ((struct dialog*)object)->host = host;
}

static const struct ox_docker_table docker_table = {
    .polymorphic = object_polymorphic,
    .visit_icon = ignore_pointer,
    .visit_caption = visit_caption,
    .element = root,
    .flag = always_true,
    .value = all_bits,
    .attach = attach,
};
static const struct offered_interface interfaces[] = {{OX_DOCKER_INTERFACE, &docker_table}, {NULL, NULL}};

// ---- "Apply"
// ------------------------------------------------------------------------------------------------

enum { message_room = 512 };

/// Appends "caption: number" as a line of its own.
static void append(wchar_t* message, enum text_id caption, unsigned number) {
    const size_t length = wcslen(message);
    wchar_t* text = read_text(caption);
    swprintf(message + length, message_room - length, L"%ls%.100ls: %u", length ? L"\n" : L"",
             text ? text : L"", number);
    free(text);
}

static void tell_of_project(void* context) {
    const wchar_t* projection = input_text(&((struct dialog*)context)->projection.input);
    const struct survey found = survey_scenes(projection);
    wchar_t message[message_room] = L"";
    append(message, text_profiles, found.profiles);
    append(message, text_without_projection, found.without_projection);
    if (*projection) append(message, text_in_that_projection, found.in_that_projection);
    ox_show_wmessage(message);
}

void show_dialog(ox_pointer dialog_host) {
    if (ox_is_empty(dialog_host)) return;
    struct dialog dialog = {.object = {interfaces}};
    make_labelled_input(&dialog.projection, text_compare_with);
    struct button_box buttons = new_button_box(tell_of_project, &dialog);
    OX_TABLE(dialog_host, dialog_host)
        ->show_modal(OX_WORDS(dialog_host), pointer_to(&dialog), pointer_to(&buttons));
    end_labelled_input(&dialog.projection);
}
