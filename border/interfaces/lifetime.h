#pragma once
/// Who keeps whom alive across module borders. [ui] [host implements] [module implements]

#include "border/binding.h"

namespace ox {

/// An object with a list of referrers; it ends when none of them holds it any more.
struct referent_impl : binding<referent_impl, referent> {
    /// Number of referrers after the addition. An empty pointer is a pin: it counts as holding.
    virtual std::size_t add_referrer(custom_pointer /*referrer*/) { return 0; }
    /// May destroy the object.
    virtual void remove_referrer(custom_pointer /*referrer*/) {}
    /// Referent of the object that owns this one, or empty.
    virtual custom_pointer owner() { return {}; }
    virtual custom_pointer self() { return {}; }

    using table = operations<&referent_impl::add_referrer, &referent_impl::remove_referrer,
                             &referent_impl::owner, &referent_impl::self>;
};

/// Somebody who points at a referent.
struct referrer_impl : binding<referrer_impl, referrer> {
    /// The referent is being destroyed.
    virtual void released(custom_pointer /*referent*/) {}
    /// Does this referrer keep the referent alive?
    virtual bool holds() { return false; }

    using table = operations<&referrer_impl::released, &referrer_impl::holds>;
};

}  // namespace ox
