#include "c_bundle/shared_object.h"

#include <stdlib.h>
#include <string.h>

static size_t add_referrer(const void* table, void* object, ox_pointer referrer) {
    struct shared_object* self = object;
    (void)table;
    if (self->ending) return self->count;
    if (self->count == self->room) {
        const size_t room = self->room ? 2 * self->room : 4;
        ox_pointer* grown = realloc(self->referrers, room * sizeof *grown);
        if (!grown) return self->count;
        self->referrers = grown;
        self->room = room;
    }
    self->referrers[self->count++] = referrer;
    return self->count;
}

static void unlink_at(struct shared_object* self, size_t place) {
    --self->count;
    memmove(self->referrers + place, self->referrers + place + 1,
            (self->count - place) * sizeof *self->referrers);
}

/// Also true when the object has ended while it asked, by a removal from inside an answer.
static bool is_held_or_gone(struct shared_object* self) {
    bool gone = false, held = false;
    self->asking = true;
    self->ended_asking = &gone;
    for (size_t i = 0; !held && i < self->count; ++i) {
        const ox_pointer each = self->referrers[i];
        held = ox_is_empty(each) || OX_TABLE(referrer, each)->holds(OX_WORDS(each));
        if (gone) return true;
    }
    self->asking = false;
    self->ended_asking = NULL;
    return held;
}

static void end(struct shared_object* self) {
    self->ending = true;
    if (self->ended_asking) *self->ended_asking = true;
    while (self->count > 0) {
        const ox_pointer first = self->referrers[0];
        unlink_at(self, 0);
        if (!ox_is_empty(first))
            OX_TABLE(referrer, first)->released(OX_WORDS(first), pointer_as(self, OX_REFERENT_INTERFACE));
    }
    let_go(&self->owner);
    free(self->referrers);
    free(self);
}

static void remove_referrer(const void* table, void* object, ox_pointer referrer) {
    struct shared_object* self = object;
    (void)table;
    for (size_t i = 0; i < self->count; ++i)
        if (ox_is_same(self->referrers[i], referrer)) {
            unlink_at(self, i);
            break;
        }
    if (self->ending) return;
    if (!self->asking && is_held_or_gone(self)) return;
    end(self);
}

static ox_pointer owner(const void* table, void* object) {
    (void)table;
    return ((struct shared_object*)object)->owner.target;
}

ox_pointer referent_of(const void* table, void* object) {
    (void)table;
    return pointer_as(object, OX_REFERENT_INTERFACE);
}

const struct ox_referent_table referent_table = {object_polymorphic, add_referrer, remove_referrer, owner,
                                                 referent_of};

void* new_shared_object(size_t size, const struct offered_interface* interfaces, ox_pointer owning) {
    struct shared_object* made = calloc(1, size);
    if (!made) return NULL;
    const struct reference holding = HOLDING_REFERENCE;
    made->object.interfaces = interfaces;
    made->owner = holding;
    const ox_pointer self = ox_is_empty(owning) ? owning : OX_TABLE(referent, owning)->self(OX_WORDS(owning));
    point_at(&made->owner, self, self);
    return made;
}
