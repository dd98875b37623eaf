#define _POSIX_C_SOURCE 200809L

#include "c_host/bundle.h"

#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

#include "border/c/ox_bundle.h"
#include "border/c/ox_services.h"

typedef ox_pointer (*entry_function)(void* argument);

bool load_bundle(struct bundle* bundle, const char* file) {
    bundle->library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (!bundle->library) {
        fprintf(stderr, "c_host: %s\n", dlerror());
        return false;
    }
    entry_function entry = NULL;
    void* const found = dlsym(bundle->library, "ox_bundle_interface_to_custom_pointer");
    memcpy(&entry, &found, sizeof entry);  // C has no other way from an object pointer to a function
    if (entry && dlsym(bundle->library, "scary_vcl_bug_crashes_everything_on_unloading")) {
        bundle->interface = entry(bundle);
        if (!ox_is_empty(bundle->interface)) return true;
    }
    fprintf(stderr, "c_host: %s is no bundle\n", file);
    unload_bundle(bundle);
    return false;
}

enum { most_factories = 64 };

struct factory_list {
    struct object object;
    ox_pointer factories[most_factories];
    size_t count;
};

static void take_factory(const void* table, void* object, const wchar_t* key, ox_pointer factory) {
    struct factory_list* list = object;
    (void)table, (void)key;
    if (list->count < most_factories && !ox_is_empty(factory)) list->factories[list->count++] = factory;
}

static const struct ox_factory_visitor_table visitor_table = {object_polymorphic, take_factory};
static const struct offered_interface visitor_interfaces[] = {{NULL, &visitor_table}, {NULL, NULL}};

void start_bundle(const struct bundle* bundle, struct services* services) {
    struct factory_list list = {.object = {visitor_interfaces}};
    const ox_pointer visitor = pointer_to(&list), loaded = bundle->interface;
    OX_TABLE(bundle, loaded)->visit_factories(OX_WORDS(loaded), &visitor);
    for (size_t i = 0; i < list.count; ++i) {
        const ox_pointer factory = list.factories[i];
        OX_TABLE(service_factory, factory)
            ->create(OX_WORDS(factory), context_pointer(services), registry_pointer(services));
    }
}

void unload_bundle(struct bundle* bundle) { dlclose(bundle->library); }
