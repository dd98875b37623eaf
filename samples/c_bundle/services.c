#include "c_bundle/services.h"

#include "border/c/ox_dialogs.h"
#include "c_bundle/dialog.h"
#include "c_bundle/factories.h"
#include "c_bundle/shared_object.h"
#include "c_bundle/texts.h"

const wchar_t utility_id[] = L"ox_sample_profile_projections";

/// Both kinds of service.
struct service {
    struct shared_object shared;
    const wchar_t* id;
    ox_pointer dialog_host;  ///< of a dialog service
};

// ---- The utility --------------------------------------------------------------------------------------

static void visit_caption(const void* table, void* object, ox_pointer string_visitor) {
    (void)table, (void)object;
    visit_text(text_profile_projections, string_visitor);
}

static void run(const void* table, void* object) {
    (void)table, (void)object;
    show_dialog(dialog_host_of(utility_dialog_service()));
}

static const struct ox_utility_table utility_table = {
    .polymorphic = object_polymorphic,
    .visit_caption = visit_caption,
    .visit_icon = ignore_pointer,
    .attach = ignore_pointer,
    .host_request = always_true,
    .run = run,
    .reserved_6 = spare_slot,
    .set_host_data = ignore_pointer,
};

static void report_utility(const void* table, void* object, ox_pointer visitor) {
    const struct service* self = object;
    (void)table;
    if (ox_is_empty(visitor)) return;
    OX_TABLE(utility_visitor, visitor)
        ->visit(OX_WORDS(visitor), self->id, pointer_as(object, OX_UTILITY_INTERFACE));
}

static const struct ox_utility_service_table utility_service_table = {object_polymorphic, referent_of,
                                                                      report_utility};

static const struct offered_interface utility_interfaces[] = {
    {OX_UTILITY_SERVICE_INTERFACE, &utility_service_table},
    {OX_UTILITY_INTERFACE, &utility_table},
    {OX_REFERENT_INTERFACE, &referent_table},
    {NULL, NULL}};

// ---- A place for a dialog host ------------------------------------------------------------------------

static void attach(const void* table, void* object, ox_pointer dialog_host) {
    (void)table;
    ((struct service*)object)->dialog_host = dialog_host;
}

static const struct ox_modal_dialog_table modal_dialog_table = {object_polymorphic, attach};

static void report_dialog(const void* table, void* object, ox_pointer visitor) {
    const struct service* self = object;
    (void)table;
    if (ox_is_empty(visitor)) return;
    OX_TABLE(modal_dialog_visitor, visitor)
        ->visit(OX_WORDS(visitor), self->id, pointer_as(object, OX_MODAL_DIALOG_INTERFACE));
}

static const struct ox_modal_dialog_service_table dialog_service_table = {object_polymorphic, referent_of,
                                                                          report_dialog};

static const struct offered_interface dialog_interfaces[] = {
    {OX_MODAL_DIALOG_SERVICE_INTERFACE, &dialog_service_table},
    {OX_MODAL_DIALOG_INTERFACE, &modal_dialog_table},
    {OX_REFERENT_INTERFACE, &referent_table},
    {NULL, NULL}};

ox_pointer dialog_host_of(ox_pointer dialog_service) {
    const ox_pointer none = {NULL, NULL};
    return ox_is_empty(dialog_service) ? none : ((struct service*)dialog_service.object)->dialog_host;
}

// ---- Making them --------------------------------------------------------------------------------------

static ox_pointer new_service(const struct offered_interface* interfaces, const wchar_t* id,
                              ox_pointer owner) {
    const ox_pointer none = {NULL, NULL};
    struct service* made = new_shared_object(sizeof *made, interfaces, owner);
    if (!made) return none;
    made->id = id;
    return pointer_to(made);
}

ox_pointer new_utility_service(const wchar_t* id, ox_pointer owner) {
    return new_service(utility_interfaces, id, owner);
}

ox_pointer new_dialog_service(const wchar_t* id, ox_pointer owner) {
    return new_service(dialog_interfaces, id, owner);
}
