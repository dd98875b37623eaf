#pragma once
/// How a class of this module is bound to the table of an interface.
///
/// An interface is declared once, as a struct of virtual operations with default answers that names
/// itself and lists its operations in border order:
///
///     struct label_impl : binding<label_impl, label> {
///         virtual bool enabled() { return true; }
///         virtual void visit_caption(custom_pointer /*string_visitor*/) {}
///         virtual void attach_view(custom_pointer /*view*/) {}
///         using table = operations<&label_impl::enabled, &label_impl::visit_caption,
///                                  &label_impl::attach_view>;
///     };
///
/// The table (slot 0 `polymorphic`, then the operations), the query by name, the plain functions in
/// the table and the typed call on a foreign pointer all derive from it.

#include <cstddef>
#include <cstring>

#include "border/custom_pointer.h"
#include "border/fault.h"
#include "border/interface_name.h"
#include "border/operations.h"

namespace ox {

/// Tag of the host's interfaces that are called by slot and never asked for by name; such an interface
/// carries a `label`, for messages.
struct nameless {};

template <class I, class Tag = nameless>
struct binding;

/// What every binding answers before its own operations.
struct queryable {
    /// Sets both outputs when this object implements the interface `name`; leaves them alone otherwise.
    virtual void query(const char* name, const void** table_out, void** object_out) = 0;
    /// The polymorphic interface of the same object.
    virtual custom_pointer polymorphic() = 0;

protected:
    ~queryable() = default;
};

namespace detail {

/// What messages call the interface that `I` binds.
template <class I, class Tag>
constexpr const char* label_of(const binding<I, Tag>*) {
    if constexpr (requires { Tag::name; })
        return Tag::name.c_str();
    else
        return I::label;
}
template <class I>
constexpr const char* interface_label() {
    return label_of(static_cast<const I*>(nullptr));
}

/// The plain function behind one table slot.
template <class I, auto Operation, class = decltype(Operation)>
struct entry;

template <class I, auto Operation, class C, class R, class... A>
struct entry<I, Operation, R (C::*)(A...)> {
    static R call(const void*, void* object, A... arguments) noexcept {
        return at_border(interface_label<I>(), slot_of<Operation>,
                         [&] { return (static_cast<I*>(object)->*Operation)(arguments...); });
    }
};

template <class I>
custom_pointer polymorphic_entry(const void*, void* object) noexcept {
    return at_border(interface_label<I>(), 0, [&] { return static_cast<I*>(object)->polymorphic(); });
}

/// The one entry of every polymorphic table.
inline void query_entry(const void*, void* object, const char* name, const void** table_out,
                        void** object_out) noexcept {
    *table_out = nullptr;
    *object_out = nullptr;
    const bool answered = at_border("polymorphic", 0, [&] {
        if (name) static_cast<queryable*>(object)->query(name, table_out, object_out);
        return true;
    });
    if (answered) return;
    *table_out = nullptr;
    *object_out = nullptr;
}

using query_function = void (*)(const void*, void*, const char*, const void**, void**) noexcept;

/// Function pointers side by side in memory, each with its own type.
template <class First, class... Rest>
struct slots {
    First first;
    slots<Rest...> rest;
};
template <class Last>
struct slots<Last> {
    Last first;
};

template <class First, class... Rest>
constexpr slots<First, Rest...> make_slots(First first, Rest... rest) {
    if constexpr (sizeof...(Rest) == 0)
        return {first};
    else
        return {first, make_slots(rest...)};
}

template <class I, auto... Operations>
constexpr auto make_table(operation_list<Operations...>) {
    constexpr auto table = make_slots(&polymorphic_entry<I>, &entry<I, Operations>::call...);
    static_assert(sizeof(table) == (1 + sizeof...(Operations)) * sizeof(void*));
    return table;
}

template <class I>
inline constexpr auto table = make_table<I>(typename I::table{});

/// One per binding class, all with the same entry.
template <class I>
inline constexpr slots<query_function> polymorphic_table{&query_entry};

}  // namespace detail

/// This module's table of the interface that `I` binds. Constant, never freed.
template <class I>
const void* table_of() {
    return &detail::table<I>;
}

/// The pointer by which an object of this module is handed across the border.
template <class I>
custom_pointer make_pointer(I& object) {
    return {table_of<I>(), static_cast<void*>(&object)};
}

/// Base of the binding class `I` of the interface `Tag`.
template <class I, class Tag>
struct binding : queryable {
    void query(const char* name, const void** table_out, void** object_out) override {
        if constexpr (requires { Tag::name; }) {
            if (std::strcmp(name, Tag::name.c_str()) != 0) return;
            *table_out = table_of<I>();
            *object_out = static_cast<I*>(this);
        }
    }
    custom_pointer polymorphic() override {
        return {&detail::polymorphic_table<I>, static_cast<queryable*>(this)};
    }

protected:
    ~binding() = default;
};

}  // namespace ox
