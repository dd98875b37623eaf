#pragma once
/// The smart pointer between modules.

#include <utility>

#include "border/call.h"
#include "border/interfaces/lifetime.h"

namespace ox {

/// How a `ref` reaches the referent of its target: slot 1 of every referable interface. A referent
/// pointer answers for itself.
template <class T>
struct reftraits {
    static custom_pointer referent_of(custom_pointer target) {
        if (!target) return {};
        return detail::function_at<custom_pointer (*)(const void*, void*)>(target, 1)(target.table,
                                                                                      target.object);
    }
};

template <>
struct reftraits<referent> {
    static custom_pointer referent_of(custom_pointer target) { return call<&referent_impl::self>(target); }
};

/// Points at an object that implements interface `T` of whatever module. W = 0 holds the object, W = 1
/// only observes it: it becomes empty when the object ends, so test it before each use.
template <class T, bool W, class Traits = reftraits<T>>
class ref final : public referrer_impl {
public:
    ref() = default;
    explicit ref(custom_pointer target) { reset(target); }
    ref(const ref& other) : ref(other.target_) {}
    ref& operator=(const ref& other) {
        reset(other.target_);
        return *this;
    }
    ~ref() { reset(); }

    custom_pointer get() const { return target_; }
    explicit operator bool() const { return static_cast<bool>(target_); }

    /// The new target is attached before the old one goes, which may take along what holds the new one, and
    /// this reference itself.
    void reset(custom_pointer target = {}) {
        if (target == target_) return;
        call<&referent_impl::add_referrer>(Traits::referent_of(target), this_referrer());
        detach(std::exchange(target_, target), this_referrer());
    }

    void released(custom_pointer) override { target_ = {}; }
    bool holds() override { return !W; }

private:
    custom_pointer this_referrer() { return make_pointer<referrer_impl>(*this); }

    /// Pins the owner while the referent goes: the end of the referent drops its hold on the owner.
    static void detach(custom_pointer target, custom_pointer referrer) {
        const custom_pointer referent = Traits::referent_of(target);
        const custom_pointer owner = call<&referent_impl::owner>(referent);
        call<&referent_impl::add_referrer>(owner, custom_pointer{});
        call<&referent_impl::remove_referrer>(referent, referrer);
        call<&referent_impl::remove_referrer>(owner, custom_pointer{});
    }

    custom_pointer target_{};
};

}  // namespace ox
