#include "c_host/services.h"

#include <stdlib.h>
#include <string.h>

#include "border/c/ox_dialogs.h"
#include "border/c/ox_services.h"
#include "c_common/text_reader.h"

static const ox_pointer nothing;

// ---- The context ----------------------------------------------------------------------------------------

// It outlives all that refers to it, so that it need only count.

static size_t add_referrer(const void* table, void* object, ox_pointer referrer) {
    (void)table, (void)referrer;
    return ++((struct context*)object)->referrers;
}

static void remove_referrer(const void* table, void* object, ox_pointer referrer) {
    (void)table, (void)referrer;
    --((struct context*)object)->referrers;
}

static ox_pointer no_owner(const void* table, void* object) {
    (void)table, (void)object;
    return nothing;
}

static ox_pointer self(const void* table, void* object) {
    (void)table;
    return pointer_as(object, OX_REFERENT_INTERFACE);
}

static void visit_registry(const void* table, void* object, ox_pointer visitor) {
    (void)table;
    if (!ox_is_empty(visitor))
        OX_TABLE(service_registry_visitor, visitor)
            ->visit_registry(OX_WORDS(visitor), registry_pointer(((struct context*)object)->services));
}

static const struct ox_referent_table referent_table = {object_polymorphic, add_referrer, remove_referrer,
                                                        no_owner, self};
static const struct ox_bundle_context_table context_table = {object_polymorphic, spare_number,
                                                             visit_registry};
static const struct offered_interface context_interfaces[] = {
    {OX_BUNDLE_CONTEXT_INTERFACE, &context_table}, {OX_REFERENT_INTERFACE, &referent_table}, {NULL, NULL}};

// ---- What services report ---------------------------------------------------------------------------------

/// Visitor of utilities and of modal dialogs: both have an id and a pointer.
struct report {
    struct object object;
    struct offer offer;
};

static void take(const void* table, void* object, const wchar_t* id, ox_pointer pointer) {
    struct report* report = object;
    (void)table;
    free(report->offer.id);
    report->offer.id = copy_text(id);
    report->offer.pointer = pointer;
}

static const struct ox_utility_visitor_table utility_visitor = {object_polymorphic, take};
static const struct ox_modal_dialog_visitor_table dialog_visitor = {object_polymorphic, take};
static const struct offered_interface report_interfaces[] = {
    {OX_UTILITY_VISITOR_INTERFACE, &utility_visitor},
    {OX_MODAL_DIALOG_VISITOR_INTERFACE, &dialog_visitor},
    {NULL, NULL}};

// ---- The registry -----------------------------------------------------------------------------------------

/// Holds a service; false when it is held already, or there is none or no room for one.
static bool hold(struct services* services, ox_pointer service, ox_pointer referent) {
    const struct reference holding = HOLDING_REFERENCE;
    if (ox_is_empty(service) || services->held_count == most_services) return false;
    for (size_t i = 0; i < services->held_count; ++i)
        if (ox_is_same(services->held[i].target, service)) return false;
    struct reference* added = &services->held[services->held_count++];
    *added = holding;
    point_at(added, service, referent);
    return true;
}

static void take_utility(const void* table, void* object, ox_pointer service) {
    struct services* services = object;
    struct report report = {{report_interfaces}, {NULL, {NULL, NULL}}};
    (void)table;
    if (ox_is_empty(service)) return;
    const struct ox_utility_service_table* its = OX_TABLE(utility_service, service);
    if (!hold(services, service, its->referent(OX_WORDS(service)))) return;
    its->report(OX_WORDS(service), pointer_as(&report, OX_UTILITY_VISITOR_INTERFACE));
    services->utilities[services->utility_count++] = report.offer;
}

static void take_dialog(const void* table, void* object, ox_pointer service) {
    struct services* services = object;
    struct report report = {{report_interfaces}, {NULL, {NULL, NULL}}};
    (void)table;
    if (ox_is_empty(service)) return;
    const struct ox_modal_dialog_service_table* its = OX_TABLE(modal_dialog_service, service);
    if (!hold(services, service, its->referent(OX_WORDS(service)))) return;
    its->report(OX_WORDS(service), pointer_as(&report, OX_MODAL_DIALOG_VISITOR_INTERFACE));
    services->dialogs[services->dialog_count++] = report.offer;
    const ox_pointer dialog = report.offer.pointer;
    if (!ox_is_empty(dialog)) OX_TABLE(modal_dialog, dialog)->attach(OX_WORDS(dialog), services->dialog_host);
}

/// This host has no services of its own, and so no localizer.
static void visit_category(const void* table, void* object, const wchar_t* key, ox_pointer service_visitor) {
    (void)table, (void)object, (void)key, (void)service_visitor;
}

static const struct ox_service_registry_table registry_table = {object_polymorphic, visit_category};
static const struct ox_utility_service_visitor_table utility_intake = {object_polymorphic, take_utility};
static const struct ox_modal_dialog_service_visitor_table dialog_intake = {object_polymorphic, take_dialog};
static const struct offered_interface registry_interfaces[] = {
    {OX_SERVICE_REGISTRY_INTERFACE, &registry_table},
    {OX_UTILITY_SERVICE_VISITOR_INTERFACE, &utility_intake},
    {OX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE, &dialog_intake},
    {NULL, NULL}};

// ---- Beginning and end ------------------------------------------------------------------------------------

void begin_services(struct services* services, ox_pointer dialog_host) {
    memset(services, 0, sizeof *services);
    services->registry.interfaces = registry_interfaces;
    services->context.object.interfaces = context_interfaces;
    services->context.services = services;
    services->dialog_host = dialog_host;
}

ox_pointer context_pointer(struct services* services) { return pointer_to(&services->context); }
ox_pointer registry_pointer(struct services* services) { return pointer_to(&services->registry); }

void leave_services(struct services* services) {
    for (size_t i = 0; i < services->dialog_count; ++i) {
        const ox_pointer dialog = services->dialogs[i].pointer;
        if (!ox_is_empty(dialog)) OX_TABLE(modal_dialog, dialog)->attach(OX_WORDS(dialog), nothing);
        free(services->dialogs[i].id);
    }
    for (size_t i = 0; i < services->utility_count; ++i) free(services->utilities[i].id);
    while (services->held_count > 0) let_go(&services->held[--services->held_count]);
    services->dialog_count = services->utility_count = 0;
}
