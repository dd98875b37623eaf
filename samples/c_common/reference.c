#include "c_common/reference.h"

static const ox_pointer nothing;

static void released(const void* table, void* object, ox_pointer referent) {
    struct reference* self = object;
    (void)table, (void)referent;
    self->target = self->referent = nothing;
}

static bool holds(const void* table, void* object) {
    (void)table;
    return ((struct reference*)object)->holds;
}

static const struct ox_referrer_table referrer_table = {object_polymorphic, released, holds};

const struct offered_interface reference_interfaces[] = {{OX_REFERRER_INTERFACE, &referrer_table},
                                                         {NULL, NULL}};

void point_at(struct reference* reference, ox_pointer target, ox_pointer referent) {
    let_go(reference);
    if (ox_is_empty(target) || ox_is_empty(referent)) return;
    reference->target = target;
    reference->referent = referent;
    OX_TABLE(referent, referent)->add_referrer(OX_WORDS(referent), pointer_to(reference));
}

void let_go(struct reference* reference) {
    const ox_pointer referent = reference->referent;
    reference->target = reference->referent = nothing;
    if (ox_is_empty(referent)) return;
    // The owner is pinned: the referent lets go of it when it ends.
    const ox_pointer owner = OX_TABLE(referent, referent)->owner(OX_WORDS(referent));
    if (!ox_is_empty(owner)) OX_TABLE(referent, owner)->add_referrer(OX_WORDS(owner), nothing);
    OX_TABLE(referent, referent)->remove_referrer(OX_WORDS(referent), pointer_to(reference));
    if (!ox_is_empty(owner)) OX_TABLE(referent, owner)->remove_referrer(OX_WORDS(owner), nothing);
}
