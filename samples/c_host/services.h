#pragma once
/// What the host offers a bundle at its start, and what it keeps of the services that the bundle publishes.

#include "c_common/reference.h"

enum { most_services = 32 };

/// The utility or modal dialog behind a service.
struct offer {
    wchar_t* id;
    ox_pointer pointer;
};

struct services {
    struct object registry;  ///< first: the tables of the registry act on all of this
    struct context {
        struct object object;
        struct services* services;
        size_t referrers;
    } context;
    struct reference held[most_services];
    size_t held_count;
    struct offer utilities[most_services];
    size_t utility_count;
    struct offer dialogs[most_services];
    size_t dialog_count;
    ox_pointer dialog_host;
};

/// Stays where it is in memory. `dialog_host` is attached to every dialog that is published.
void begin_services(struct services* services, ox_pointer dialog_host);

ox_pointer context_pointer(struct services* services);
ox_pointer registry_pointer(struct services* services);

/// Lets go of all services, which end then.
void leave_services(struct services* services);
