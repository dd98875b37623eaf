#pragma once
/// A pointer that is kept: a referrer of the object it points at.

#include "border/c/ox_lifetime.h"
#include "c_common/object.h"

struct reference {
    struct object object;
    ox_pointer target;    ///< empty when it points at nothing, or what it pointed at has ended
    ox_pointer referent;  ///< of the target
    bool holds;           ///< keeps the target alive; an observing reference does not
};

extern const struct offered_interface reference_interfaces[];
#define HOLDING_REFERENCE \
    { {reference_interfaces}, {NULL, NULL}, {NULL, NULL}, true }
#define OBSERVING_REFERENCE \
    { {reference_interfaces}, {NULL, NULL}, {NULL, NULL}, false }

/// Leaves what it points at, then joins the referrers of the new target. A reference stays where it is in
/// memory for as long as it points at something.
void point_at(struct reference* reference, ox_pointer target, ox_pointer referent);
void let_go(struct reference* reference);
