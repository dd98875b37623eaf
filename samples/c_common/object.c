#include "c_common/object.h"

#include <string.h>

static void query(const void* table, void* object, const char* name, const void** table_out,
                  void** object_out) {
    (void)table;
    *table_out = NULL;
    *object_out = NULL;
    if (!name) return;
    const ox_pointer found = pointer_as(object, name);
    *table_out = found.table;
    *object_out = found.object;
}

static const struct ox_polymorphic_table polymorphic_table = {query};

ox_pointer object_polymorphic(const void* table, void* object) {
    (void)table;
    const ox_pointer polymorphic = {&polymorphic_table, object};
    return polymorphic;
}

ox_pointer pointer_to(void* object) {
    const struct object* self = object;
    const ox_pointer pointer = {self->interfaces->table, object};
    return pointer;
}

ox_pointer pointer_as(void* object, const char* interface_name) {
    ox_pointer found = {NULL, NULL};
    for (const struct offered_interface* each = ((struct object*)object)->interfaces; each->table; ++each)
        if (each->name && strcmp(each->name, interface_name) == 0) {
            found.table = each->table;
            found.object = object;
        }
    return found;
}

void ignore_pointer(const void* table, void* object, ox_pointer pointer) {
    (void)table, (void)object, (void)pointer;
}

void spare_slot(const void* table, void* object) { (void)table, (void)object; }

size_t spare_number(const void* table, void* object) {
    (void)table, (void)object;
    return 0;
}

int32_t minus_one(const void* table, void* object) {
    (void)table, (void)object;
    return -1;
}

bool always_true(const void* table, void* object) {
    (void)table, (void)object;
    return true;
}

bool always_false(const void* table, void* object) {
    (void)table, (void)object;
    return false;
}
