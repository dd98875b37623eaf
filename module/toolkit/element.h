#pragma once
/// Handles by which a layout treats its cells alike, whatever stands in them.

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

/// The interface as which an element presents itself, and the visitor slot of that kind.
template <class Impl, auto Slot>
struct kind {
    using interface = Impl;
    static constexpr auto slot = Slot;
};

template <class X, class Kind, class... Kinds>
constexpr auto kind_among() {
    if constexpr (std::is_base_of_v<typename Kind::interface, X>)
        return Kind{};
    else
        return kind_among<X, Kinds...>();
}

template <class X>
using kind_of = decltype(kind_among<X, kind<grid_layout_impl, &element_visitor_impl::grid_layout>,
                                    kind<stack_layout_impl, &element_visitor_impl::stack_layout>,
                                    kind<groupbox_impl, &element_visitor_impl::groupbox>,
                                    kind<label_impl, &element_visitor_impl::label>,
                                    kind<button_impl, &element_visitor_impl::button>,
                                    kind<input_impl, &element_visitor_impl::input>,
                                    kind<floating_input_impl, &element_visitor_impl::floating_input>,
                                    kind<dropdown_impl, &element_visitor_impl::dropdown>,
                                    kind<multiline_output_impl, &element_visitor_impl::multiline_output>,
                                    kind<outline_impl, &element_visitor_impl::outline>,
                                    kind<toolbar_impl, &element_visitor_impl::toolbar>>());

/// Refers to an element that lives in its parent's storage.
template <class X>
class generic_element_impl final : public generic_element {
public:
    explicit generic_element_impl(X& element) : element_(&element) {}
    void visit(custom_pointer element_visitor) override {
        using kind = kind_of<X>;
        call<kind::slot>(element_visitor, make_pointer<typename kind::interface>(*element_));
    }

private:
    X* element_;
};

}  // namespace ox::toolkit::detail
