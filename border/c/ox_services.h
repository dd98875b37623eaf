#pragma once
/// How bundles publish services and find those of the host.
///
/// The host calls `create` of each factory with the bundle's context and its registry. A factory that
/// publishes casts the registry (`ox_cast`) to the visitor of its kind of service, for example
/// OX_UTILITY_SERVICE_VISITOR_INTERFACE, and hands the service to that visitor's slot 1; a registry that
/// lacks the visitor does not take such services. A factory that consumes asks the context for the registry
/// and visits a category:
///
///     context.visit_registry(me)  ->  me.visit_registry(registry)
///     registry.visit(key, me)     ->  the registry casts `me` to the visitor of each service it holds there,
///                                     e.g. OX_LOCALIZER_SERVICE_VISITOR_INTERFACE, and calls its slot 1

#include <stdint.h>

#include "ox_pointer.h"

#define OX_SERVICE_FACTORY_INTERFACE "ox_service_factory_interface_1"
#define OX_BUNDLE_CONTEXT_INTERFACE "ox_bundle_context_interface_1"
#define OX_SERVICE_REGISTRY_INTERFACE "ox_service_registry_interface_0"
#define OX_SERVICE_REGISTRY_VISITOR_INTERFACE "ox_service_registry_visitor_interface_0"
#define OX_SERVICE_VISITOR_INTERFACE "ox_service_visitor_interface_0"
#define OX_LOCALIZER_INTERFACE "ox_localizer_interface_1"
#define OX_LOCALIZER_VISITOR_INTERFACE "ox_localizer_visitor_interface_1"
#define OX_LOCALIZER_SERVICE_INTERFACE "ox_localizer_service_interface_1"
#define OX_LOCALIZER_SERVICE_VISITOR_INTERFACE "ox_localizer_service_visitor_interface_1"
#define OX_LOCALIZER_CLIENT_INTERFACE "ox_localizer_client_interface_0"

/// A category key is the host's domain-style namespace (a setting of the build, e.g. L"ox.host") followed by
/// one of these.
#define OX_UTILITY_CATEGORY L"/utility"
#define OX_LOCALIZER_CATEGORY L"/localizer"

/// [bundle implements]
struct ox_service_factory_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// The host calls it after it has seen all factories, in their order, and perhaps again: then the same
    /// services are published again. `context` is an OX_BUNDLE_CONTEXT_INTERFACE pointer, valid until the
    /// library is unloaded; its OX_REFERENT_INTERFACE owns what is created. `registry` is an
    /// OX_SERVICE_REGISTRY_INTERFACE pointer. With an empty registry nothing is created.
    void (*create)(const void* table, void* object, ox_pointer context, ox_pointer registry);
};

/// The bundle's place in the host. Answers OX_REFERENT_INTERFACE too. [host implements]
struct ox_bundle_context_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    size_t (*reserved_1)(const void* table, void* object);
    /// Calls the visitor with the registry.
    void (*visit_registry)(const void* table, void* object, ox_pointer service_registry_visitor);
};

/// [host implements]
struct ox_service_registry_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Visits the services of a category in no order that could be relied on. `service_visitor` is an
    /// ordinary pointer to OX_SERVICE_VISITOR_INTERFACE.
    void (*visit)(const void* table, void* object, const wchar_t* key, ox_pointer service_visitor);
};

/// [bundle implements]
struct ox_service_registry_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_registry)(const void* table, void* object, ox_pointer service_registry);
};

/// A marker without operations: the registry only casts it to the visitors of the services it has. The object
/// therefore answers one of those names as well. [bundle implements]
struct ox_service_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
};

// ---- Localizer --------------------------------------------------------------------------------------------

/// Takes over the lookup of a bundle's own texts and pictures, ids above 0 (ox_resources.h); while there is
/// one, the bundle's own are not consulted. A bundle observes it: it is fetched once, by a factory's
/// `create`, and may end at any time. [host implements]
struct ox_localizer_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Its referent (ox_lifetime.h).
    ox_pointer (*referent)(const void* table, void* object);
    /// False, and no visit, when it has no text for the id.
    bool (*visit_string)(const void* table, void* object, uint32_t id, ox_pointer string_visitor);
    void (*visit_bitmap)(const void* table, void* object, uint32_t id,
                         ox_pointer thrice_interleaved_bytes_visitor);
    void (*visit_masked_bitmap)(const void* table, void* object, uint32_t id,
                                ox_pointer masked_bitmap_visitor);
};

/// Found in the category OX_LOCALIZER_CATEGORY. [host implements]
struct ox_localizer_service_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Calls the visitor with the localizer of the bundle that `context` belongs to, if it has one.
    void (*visit_localizer)(const void* table, void* object, ox_pointer localizer_visitor,
                            ox_pointer context);
};

/// [bundle implements]
struct ox_localizer_service_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Called once per localizer service; the last localizer that they give is the one to keep.
    void (*visit_service)(const void* table, void* object, ox_pointer localizer_service);
};

/// [bundle implements]
struct ox_localizer_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_localizer)(const void* table, void* object, ox_pointer localizer);
};

/// [bundle implements]
struct ox_localizer_client_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// The language of the host has changed. A bundle that looks its texts up each time need do nothing.
    void (*notify)(const void* table, void* object);
};
