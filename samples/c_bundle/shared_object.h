#pragma once
/// An object that lives for as long as a referrer holds it.

#include "c_common/reference.h"

/// Begins every such object. It belongs to its referrers from the start: the maker lets a holding reference
/// point at it at once.
struct shared_object {
    struct object object;
    ox_pointer* referrers;  ///< in order of addition; empty ones are pins
    size_t count, room;
    bool asking;         ///< the referrers are being asked whether they hold
    bool* ended_asking;  ///< told when the object ends meanwhile
    bool ending;
    struct reference owner;
};

/// On the heap, zeroed, `size` bytes beginning with a shared_object; `interfaces` includes
/// {OX_REFERENT_INTERFACE, &referent_table}. Null without memory.
void* new_shared_object(size_t size, const struct offered_interface* interfaces, ox_pointer owner);

extern const struct ox_referent_table referent_table;

/// Slot 1 of every interface that can be held.
ox_pointer referent_of(const void* table, void* object);
