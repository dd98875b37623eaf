#include "c_bundle/factories.h"

#include <stdlib.h>

#include "border/c/ox_dialogs.h"
#include "border/c/ox_services.h"
#include "c_bundle/localizer.h"
#include "c_bundle/services.h"
#include "c_common/reference.h"

struct factory {
    struct object object;
    const wchar_t* key;
    void (*create)(struct factory* self, ox_pointer context, ox_pointer registry);
    // Of a factory that publishes:
    const char* visitor;  ///< by which the registry takes the service
    ox_pointer (*make)(const wchar_t* id, ox_pointer owner);
    const wchar_t* id;
    struct reference published;  ///< the host keeps the service alive, this observes it
};

/// Makes one service for the life of the bundle and publishes it each time the host asks.
static void publish(struct factory* self, ox_pointer context, ox_pointer registry) {
    const ox_pointer visitor = ox_cast(registry, self->visitor);
    if (ox_is_empty(visitor)) return;
    ox_pointer service = self->published.target;
    if (ox_is_empty(service)) service = self->make(self->id, ox_cast(context, OX_REFERENT_INTERFACE));
    if (ox_is_empty(service)) return;

    // `referent` and `visit` stand in slot 1 for every kind of service.
    const ox_pointer referent = OX_TABLE(utility_service, service)->referent(OX_WORDS(service));
    struct reference meanwhile = HOLDING_REFERENCE;
    point_at(&meanwhile, service, referent);
    OX_TABLE(utility_service_visitor, visitor)->visit(OX_WORDS(visitor), service);
    point_at(&self->published, service, referent);
    let_go(&meanwhile);
}

static void consume(struct factory* self, ox_pointer context, ox_pointer registry) {
    (void)self, (void)registry;
    fetch_localizer(context);
}

static void leave_when_unloaded(void);

static void create(const void* table, void* object, ox_pointer context, ox_pointer registry) {
    struct factory* self = object;
    (void)table;
    leave_when_unloaded();
    self->create(self, context, registry);
}

static const struct ox_service_factory_table factory_table = {object_polymorphic, create};
static const struct offered_interface interfaces[] = {{OX_SERVICE_FACTORY_INTERFACE, &factory_table},
                                                      {NULL, NULL}};

/// The place without an id serves dialogs that have none, and file dialogs.
enum { plain_dialogs, utilities, utility_dialogs, localizer_client, factory_count };

static struct factory factories[factory_count] = {
    [plain_dialogs] = {.object = {interfaces},
                       .key = L"",
                       .create = publish,
                       .visitor = OX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE,
                       .make = new_dialog_service,
                       .id = L"",
                       .published = OBSERVING_REFERENCE},
    [utilities] = {.object = {interfaces},
                   .key = OX_HOST_NAMESPACE OX_UTILITY_CATEGORY,
                   .create = publish,
                   .visitor = OX_UTILITY_SERVICE_VISITOR_INTERFACE,
                   .make = new_utility_service,
                   .id = utility_id,
                   .published = OBSERVING_REFERENCE},
    [utility_dialogs] = {.object = {interfaces},
                         .key = L"",
                         .create = publish,
                         .visitor = OX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE,
                         .make = new_dialog_service,
                         .id = utility_id,
                         .published = OBSERVING_REFERENCE},
    [localizer_client] = {.object = {interfaces},
                          .key = L"",
                          .create = consume,
                          .published = OBSERVING_REFERENCE},
};

void visit_factories(const ox_pointer* factory_visitor) {
    if (!factory_visitor || ox_is_empty(*factory_visitor)) return;
    const ox_pointer visitor = *factory_visitor;
    for (struct factory* each = factories; each != factories + factory_count; ++each)
        OX_TABLE(factory_visitor, visitor)->visit(OX_WORDS(visitor), each->key, pointer_to(each));
}

ox_pointer utility_dialog_service(void) { return factories[utility_dialogs].published.target; }

/// The last created is left first.
static void leave(void) {
    forget_localizer();
    for (size_t i = factory_count; i > 0; --i) let_go(&factories[i - 1].published);
}

/// The end of a library is the end of its `atexit` functions, on every platform.
static void leave_when_unloaded(void) {
    static bool registered = false;
    if (!registered) registered = atexit(leave) == 0;
}
