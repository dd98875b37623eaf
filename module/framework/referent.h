#pragma once
/// The standard referent: an object that lives as long as a referrer holds it.
///
/// Each removal of a referrer asks the others whether one still holds; when none does, the remaining
/// ones are told (`released`) and the object destroys itself. The creator gives it a holder at once.
/// Referrers may come and go while they are asked or told.

#include <list>

#include "border/interfaces/lifetime.h"
#include "border/ref.h"

namespace ox {

struct objbase : referent_impl {
    objbase() = default;
    objbase(const objbase&) = delete;
    objbase& operator=(const objbase&) = delete;

    /// Who comes while the object ends is neither told nor holds it.
    std::size_t add_referrer(custom_pointer referrer) override;
    /// Destroys the object when nobody holds it any more, and on every removal from inside a `holds` answer.
    /// Who leaves while the object ends is not told any more.
    void remove_referrer(custom_pointer referrer) override;
    custom_pointer owner() override = 0;
    custom_pointer self() override { return make_pointer<referent_impl>(*this); }

    virtual ~objbase();

private:
    /// Does one of the referrers hold? Also true when the object ended while they were asked.
    bool lives_on();
    void end();

    std::list<custom_pointer> referrers_;  ///< in order of addition, duplicates allowed
    bool* ended_ = nullptr;                ///< while the referrers are being asked: tells the asking frame
    bool ending_ = false;                  ///< they are being told
    std::list<custom_pointer>::iterator next_told_;
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
