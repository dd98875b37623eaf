#pragma once
/// Handles by which a layout treats its cells alike, whatever stands in them.

#include <memory>
#include <type_traits>

#include "border/call.h"
#include "border/interfaces/controls.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/tools.h"

namespace ox::toolkit::detail {

class generic_element {
public:
    virtual ~generic_element() = default;
    /// Hands the element to the slot of its kind; an empty visitor is ignored.
    virtual void visit(custom_pointer element_visitor) = 0;
};

/// The interface as which an element presents itself, and the visitor's operation for that kind.
template <class Impl, auto Operation>
struct kind {
    using interface = Impl;
    static constexpr auto operation = Operation;
};

/// Ends the list of kinds.
struct no_kind {};

template <class X, class Kind, class... Kinds>
constexpr auto kind_among() {
    static_assert(!std::is_same_v<Kind, no_kind>, "no kind of element");
    if constexpr (std::is_base_of_v<typename Kind::interface, X>)
        return Kind{};
    else
        return kind_among<X, Kinds...>();
}

template <class X>
using kind_of = decltype(kind_among<X,
#define OX_ELEMENT(words, slot, caption) kind<words##_impl, &element_visitor_impl::words>,
#include "border/element_kinds.inc"
#undef OX_ELEMENT
                                    no_kind>());

/// Refers to an element that lives in its parent's storage.
template <class X>
class generic_element_impl final : public generic_element {
public:
    explicit generic_element_impl(X& element) : element_(&element) {}
    const X* element() const { return element_; }
    void visit(custom_pointer element_visitor) override {
        using kind = kind_of<X>;
        call<kind::operation>(element_visitor, make_pointer<typename kind::interface>(*element_));
    }

private:
    X* element_;
};

/// Where an element may stand in a layout.
class place {
public:
    /// Nothing stands in an empty place.
    void visit(custom_pointer element_visitor) const {
        if (handle_) handle_->visit(element_visitor);
    }
    /// False when the element stands there already.
    template <class X>
    bool put(X& element) {
        const auto* old = dynamic_cast<const generic_element_impl<X>*>(handle_.get());
        if (old && old->element() == &element) return false;
        handle_ = std::make_unique<generic_element_impl<X>>(element);
        return true;
    }

private:
    std::unique_ptr<generic_element> handle_;
};

}  // namespace ox::toolkit::detail
