#pragma once
/// The standard referent: an object that lives as long as a referrer holds it.
///
/// Each removal of a referrer asks the others whether one still holds; when none does, the remaining
/// ones are told (`released`) and the object destroys itself. The creator gives it a holder at once.

#include <list>

#include "border/interfaces/lifetime.h"
#include "border/ref.h"

namespace ox {

struct objbase : referent_impl {
    objbase() = default;
    objbase(const objbase&) = delete;
    objbase& operator=(const objbase&) = delete;

    std::size_t add_referrer(custom_pointer referrer) override;
    /// Destroys the object when nobody holds it any more.
    void remove_referrer(custom_pointer referrer) override;
    custom_pointer owner() override = 0;
    custom_pointer self() override { return make_pointer<referent_impl>(*this); }

    virtual ~objbase() = default;

private:
    bool is_held();

    std::list<custom_pointer> referrers_;  ///< in order of addition, duplicates allowed
    bool polling_ = false;                 ///< set while the referrers are being asked
};

/// A referent owned by another one, which it holds.
struct obj : objbase {
    /// `owner` is a referent pointer or empty.
    explicit obj(custom_pointer owner) : owner_(owner) {}

    custom_pointer owner() override { return owner_.get(); }

private:
    ref<referent, 0> owner_;
};

namespace util {

/// Binding `T` of an interface whose slot 1 answers the object's referent.
template <class T>
struct referentbase : T {
    custom_pointer referent() override { return referent_self(); }

protected:
    virtual custom_pointer referent_self() = 0;
    ~referentbase() = default;
};

/// Base of the module's own services: `struct my_service : util::referent<utility_service_impl>`.
/// The most derived class initialises the virtual base `obj` with the owner.
template <class T>
struct referent : referentbase<T>, virtual obj {
    referent() : obj(custom_pointer{}) {}

protected:
    custom_pointer referent_self() override { return obj::self(); }
};

}  // namespace util

}  // namespace ox
