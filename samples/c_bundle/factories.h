#pragma once
/// The factories of this bundle, which the host calls at its start to have the services made.

#include "border/c/ox_bundle.h"

/// Hands every factory with its key to the visitor, in their order.
void visit_factories(const ox_pointer* factory_visitor);

/// The service of the utility's dialog; empty while there is none.
ox_pointer utility_dialog_service(void);
