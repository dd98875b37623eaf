#pragma once
/// When an element tells its host that it has changed.

#include <utility>

#include "border/call.h"
#include "border/interfaces/layouts.h"
#include "toolkit/life.h"

namespace ox::toolkit {

/// The view that the host attached last to an element. It belongs to the host, and must outlive the element
/// or be replaced by an empty one. When it is told it may do anything, as attach another one or end the
/// element.
class notifier {
public:
    void attach(custom_pointer view) { view_ = view; }
    custom_pointer view() const { return view_; }

    /// The last act of whoever calls it.
    void tell() {
        if (steps_ > 0)
            untold_ = true;
        else
            call<&element_view_slots::changed>(view_);
    }

    life& element_life() { return life_; }

private:
    friend class in_one_step;
    void begin_step() { ++steps_; }
    void end_step() {
        if (--steps_ == 0 && std::exchange(untold_, false)) tell();
    }

    custom_pointer view_{};
    life life_;
    unsigned steps_ = 0;
    bool untold_ = false;
};

template <class Impl>
class with_view;

/// Changes to an element that are told once, when they stand: as this ends.
class in_one_step {
public:
    template <class Impl>
    explicit in_one_step(with_view<Impl>& element) : notifier_(element.notifier_), alive_(notifier_.life_) {
        notifier_.begin_step();
    }
    in_one_step(const in_one_step&) = delete;
    in_one_step& operator=(const in_one_step&) = delete;
    ~in_one_step() {
        if (alive_) notifier_.end_step();
    }

    /// False when the element has ended meanwhile.
    explicit operator bool() const { return static_cast<bool>(alive_); }

private:
    notifier& notifier_;
    life::watch alive_;
};

}  // namespace ox::toolkit
