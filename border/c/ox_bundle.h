#pragma once
/// What a bundle is: a shared library that exports the two functions below and nothing else.
///
/// The order of calls, all from the host:
///   1. load the library, which may register its factories but calls nothing of the host
///   2. ox_bundle_interface_to_custom_pointer -> bundle table
///   3. visit_factories: every factory with its key, always in the same order
///   4. `create` of each factory in that order (ox_services.h); they publish their services, which the host
///      holds, and to whose modal dialogs it attaches its dialog hosts (ox_dialogs.h)
///   5. work: `run` of utilities
///   6. leave the services, so that they end; unload the library, which leaves what it still refers to

#include "ox_linkage.h"
#include "ox_pointer.h"

/// The bundle's table. Neither it nor the context table follows the rule of slot 0. [bundle implements]
struct ox_bundle_table {
    /// A pointer of the context table and the same object.
    ox_pointer (*context)(const void* table, void* object);
    /// Calls the visitor once per factory, an empty visitor never. The one place of the whole border where a
    /// pointer is passed by reference; it is [lent for the call].
    void (*visit_factories)(const void* table, void* object, const ox_pointer* factory_visitor);
    /// May be called with any arguments.
    void (*reserved_2)(const void* table, void* object);
    void (*reserved_3)(const void* table, void* object);
    void (*reserved_4)(const void* table, void* object);
    void (*reserved_5)(const void* table, void* object);
};

/// The bundle's own context. [bundle implements]
struct ox_context_table {
    /// As ox_polymorphic_table's. A bundle may answer every request with nulls.
    void (*query)(const void* table, void* object, const char* name, const void** table_out,
                  void** object_out);
};

/// Has no interface name; its slot 0 need not be called. [host implements]
struct ox_factory_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// `factory` is an OX_SERVICE_FACTORY_INTERFACE pointer and stays valid until the library is unloaded;
    /// `key` is the service category that it serves, "" for none, [lent for the call].
    void (*visit)(const void* table, void* object, const wchar_t* key, ox_pointer factory);
};

/// The bundle's table with `argument`, unchanged, as the object. Every call answers the same table.
OX_C_EXPORT ox_pointer ox_bundle_interface_to_custom_pointer(void* argument);
/// Empty; hosts look for its presence.
OX_C_EXPORT void scary_vcl_bug_crashes_everything_on_unloading(void);
