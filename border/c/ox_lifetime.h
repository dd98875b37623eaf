#pragma once
/// Who keeps whom alive across the border.
///
/// An `ox_pointer` carries no lifetime. What lives longer than a call (services, localizers, the host's
/// context) is a referent: it lists the referrers that point at it and ends when a removal finds that none of
/// them holds it any more. The creator of a referent gives it a holder at once.
///
/// The interfaces that can be held (utility service, modal dialog service, localizer) answer their referent
/// at slot 1. Whoever keeps such a pointer joins and leaves like this:
///
///     join:   r = referent of the target;   r.add_referrer(me)
///     leave:  r = referent of the target;   o = r.owner()
///             o.add_referrer(empty)         a pin: the owner may not end while its child does
///             r.remove_referrer(me)         may end r, which then lets go of o
///             o.remove_referrer(empty)      may end o
///
/// Holders (`holds` answers true) keep the referent alive. Observers (`holds` answers false) do not; they are
/// told by `released`, are empty from then on, and must test that before each use.

#include "ox_pointer.h"

#define OX_REFERENT_INTERFACE "ox_referent_interface_1"
#define OX_REFERRER_INTERFACE "ox_referrer_interface_1"

/// [host implements] [bundle implements]
struct ox_referent_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Appends `referrer` (an OX_REFERRER_INTERFACE pointer) to the list; twice added is twice listed. An
    /// empty pointer is a pin and counts as holding. Answers the number of entries afterwards. The referrer
    /// stays valid until it is removed or told `released`.
    size_t (*add_referrer)(const void* table, void* object, ox_pointer referrer);
    /// Unlinks the first entry equal to `referrer`, if there is one; then asks the entries in order whether
    /// one holds. If none does, calls `released` of each entry that is not empty, in order, and ends the
    /// object: the caller must not touch it afterwards. From inside `holds` the asking is skipped and the
    /// object ends. From inside `released` this only unlinks.
    void (*remove_referrer)(const void* table, void* object, ox_pointer referrer);
    /// Referent of the object that owns this one, which this one holds; empty when there is none.
    ox_pointer (*owner)(const void* table, void* object);
    /// This object as a referent.
    ox_pointer (*self)(const void* table, void* object);
};

/// [host implements] [bundle implements]
struct ox_referrer_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// The referent is about to end and still answers. Forget it; it need not be left.
    void (*released)(const void* table, void* object, ox_pointer referent);
    /// Does this referrer keep the referent alive? Called while the referent decides whether to end.
    bool (*holds)(const void* table, void* object);
};
