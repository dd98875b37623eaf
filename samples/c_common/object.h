#pragma once
/// Objects in plain C that cross the border.

#include <stdint.h>

#include "border/c/ox_pointer.h"

/// An interface that an object offers, and the table of it.
struct offered_interface {
    const char* name;
    const void* table;
};

/// The beginning of every object. All its tables act on the object's own address, so that any pointer to it
/// leads to every interface. The list ends with an entry without a table.
struct object {
    const struct offered_interface* interfaces;
};

/// Slot 0 of every table.
ox_pointer object_polymorphic(const void* table, void* object);

/// The pointer to an object by the first interface it offers, or by a named one.
ox_pointer pointer_to(void* object);
ox_pointer pointer_as(void* object, const char* interface_name);

// Slots without a meaning, and answers that many tables give.
void ignore_pointer(const void* table, void* object, ox_pointer pointer);
void spare_slot(const void* table, void* object);
size_t spare_number(const void* table, void* object);
int32_t minus_one(const void* table, void* object);
bool always_true(const void* table, void* object);
bool always_false(const void* table, void* object);
