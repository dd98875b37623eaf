#pragma once
/// How a module offers a service to the host.

#include "border/call.h"

namespace ox {

/// The registry's visitor for services of a kind; empty when the host does not take them.
template <class ServiceVisitor>
custom_pointer publisher(custom_pointer registry) {
    return cast_from<ServiceVisitor>(registry);
}

/// Hands the service to slot 1 of a service visitor of whatever kind.
inline void publish(custom_pointer service_visitor, custom_pointer service) {
    if (service_visitor)
        detail::function_at<void (*)(const void*, void*, custom_pointer)>(service_visitor, 1)(
            service_visitor.table, service_visitor.object, service);
}

/// The referent that owns what is created for a context; empty when the context has none.
inline custom_pointer owner_from(custom_pointer context) { return cast_from<referent>(context); }

}  // namespace ox
