#include "c_bundle/localizer.h"

#include "border/c/ox_services.h"
#include "c_common/reference.h"

/// All the visitors of the way from the context to the localizer, in one object: the registry casts the
/// service visitor to the visitor of localizer services.
static struct {
    struct object object;
    ox_pointer context;
    struct reference localizer;
} client;

static void visit_registry(const void* table, void* object, ox_pointer registry) {
    (void)table;
    if (!ox_is_empty(registry))
        OX_TABLE(service_registry, registry)
            ->visit(OX_WORDS(registry), OX_HOST_NAMESPACE OX_LOCALIZER_CATEGORY,
                    pointer_as(object, OX_SERVICE_VISITOR_INTERFACE));
}

static void visit_service(const void* table, void* object, ox_pointer service) {
    (void)table;
    if (!ox_is_empty(service))
        OX_TABLE(localizer_service, service)
            ->visit_localizer(OX_WORDS(service), pointer_as(object, OX_LOCALIZER_VISITOR_INTERFACE),
                              client.context);
}

static void visit_localizer(const void* table, void* object, ox_pointer localizer) {
    const ox_pointer none = {NULL, NULL};
    (void)table, (void)object;
    point_at(&client.localizer, localizer,
             ox_is_empty(localizer) ? none : OX_TABLE(localizer, localizer)->referent(OX_WORDS(localizer)));
}

static const struct ox_service_registry_visitor_table registry_visitor = {object_polymorphic, visit_registry};
static const struct ox_service_visitor_table service_visitor = {object_polymorphic};
static const struct ox_localizer_service_visitor_table localizer_service_visitor = {object_polymorphic,
                                                                                    visit_service};
static const struct ox_localizer_visitor_table localizer_visitor = {object_polymorphic, visit_localizer};
/// Texts are looked up each time they are shown, so that a new language needs no notice.
static const struct ox_localizer_client_table localizer_client = {object_polymorphic, spare_slot};

static const struct offered_interface interfaces[] = {
    {OX_SERVICE_REGISTRY_VISITOR_INTERFACE, &registry_visitor},
    {OX_SERVICE_VISITOR_INTERFACE, &service_visitor},
    {OX_LOCALIZER_SERVICE_VISITOR_INTERFACE, &localizer_service_visitor},
    {OX_LOCALIZER_VISITOR_INTERFACE, &localizer_visitor},
    {OX_LOCALIZER_CLIENT_INTERFACE, &localizer_client},
    {NULL, NULL}};

void fetch_localizer(ox_pointer context) {
    const struct reference observing = OBSERVING_REFERENCE;
    if (!ox_is_empty(client.context) || ox_is_empty(context)) return;
    client.object.interfaces = interfaces;
    client.context = context;
    client.localizer = observing;
    OX_TABLE(bundle_context, context)
        ->visit_registry(OX_WORDS(context), pointer_as(&client, OX_SERVICE_REGISTRY_VISITOR_INTERFACE));
}

void forget_localizer(void) { let_go(&client.localizer); }

ox_pointer current_localizer(void) { return client.localizer.target; }
