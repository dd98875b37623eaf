#pragma once
/// A loaded bundle.

#include "border/c/ox_pointer.h"
#include "c_host/services.h"

struct bundle {
    void* library;
    ox_pointer interface;
};

/// Says why on standard error when it answers false.
bool load_bundle(struct bundle* bundle, const char* file);
/// Calls `create` of all its factories, in their order.
void start_bundle(const struct bundle* bundle, struct services* services);
void unload_bundle(struct bundle* bundle);
