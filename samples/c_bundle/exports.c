/// The two functions by which the host knows this bundle.

#include "c_bundle/factories.h"
#include "c_common/object.h"

static void no_context(const void* table, void* object, const char* name, const void** table_out,
                       void** object_out) {
    (void)table, (void)object, (void)name;
    *table_out = NULL;
    *object_out = NULL;
}

static const struct ox_context_table context_table = {no_context};

static ox_pointer context(const void* table, void* object) {
    const ox_pointer own = {&context_table, object};
    (void)table;
    return own;
}

static void visit(const void* table, void* object, const ox_pointer* factory_visitor) {
    (void)table, (void)object;
    visit_factories(factory_visitor);
}

static const struct ox_bundle_table bundle_table = {
    .context = context,
    .visit_factories = visit,
    .reserved_2 = spare_slot,
    .reserved_3 = spare_slot,
    .reserved_4 = spare_slot,
    .reserved_5 = spare_slot,
};

ox_pointer ox_bundle_interface_to_custom_pointer(void* argument) {
    const ox_pointer bundle = {&bundle_table, argument};
    return bundle;
}

void scary_vcl_bug_crashes_everything_on_unloading(void) {}
