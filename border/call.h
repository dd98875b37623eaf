#pragma once
/// Calls through custom pointers, whoever made them. Nothing is ever called through an empty pointer.

#include <cstddef>
#include <type_traits>
#include <utility>

#include "border/binding.h"

namespace ox {

namespace detail {

template <class Function>
Function function_at(custom_pointer p, std::size_t slot) {
    return static_cast<const Function*>(p.table)[slot];
}

}  // namespace detail

/// Calls the operation of the interface that declares it:
/// `call<&label_impl::enabled>(foreign_label)`. An empty pointer answers the type's empty value.
template <auto Operation, class... A>
auto call(custom_pointer target, A&&... arguments) {
    using signature = detail::signature<decltype(Operation)>;
    constexpr auto slot = slot_of<Operation>;
    static_assert(slot > 0, "the operation stands in the table of the interface that declares it");
    using result = typename signature::result;
    if (!target) return result();
    return detail::function_at<typename signature::function>(target, slot)(target.table, target.object,
                                                                           std::forward<A>(arguments)...);
}

/// The polymorphic pointer of the object behind any other interface pointer.
inline custom_pointer polymorphic_of(custom_pointer p) {
    if (!p) return {};
    return detail::function_at<custom_pointer (*)(const void*, void*)>(p, 0)(p.table, p.object);
}

/// Asks the object behind a polymorphic pointer for an interface; empty when it has none of that name.
inline custom_pointer cast(custom_pointer polymorphic, const char* name) {
    custom_pointer result{};
    if (polymorphic)
        detail::function_at<void (*)(const void*, void*, const char*, const void**, void**)>(polymorphic, 0)(
            polymorphic.table, polymorphic.object, name, &result.table, &result.object);
    return result ? result : custom_pointer{};
}

template <class Tag>
custom_pointer cast(custom_pointer polymorphic) {
    return cast(polymorphic, Tag::name.c_str());
}

/// The same, asked through any interface pointer of the object.
template <class Tag>
custom_pointer cast_from(custom_pointer any) {
    return cast<Tag>(polymorphic_of(any));
}

/// This module's own object behind a pointer, or null when another module made it: the same interface
/// has a table of its own in every module.
template <class I>
I* unwrap(custom_pointer p) {
    return p.table == table_of<I>() ? static_cast<I*>(p.object) : nullptr;
}

}  // namespace ox
