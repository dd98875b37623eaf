#pragma once
/// The operations of an interface, in the order of its table.

#include <cstddef>
#include <type_traits>
#include <utility>

namespace ox {

/// Slot 1 onward, one operation each. An operation that nobody uses may stand in several slots.
template <auto... Operations>
struct operation_list {
    static constexpr std::size_t count = sizeof...(Operations);
};

namespace detail {

template <auto Operation, std::size_t Next>
struct filler {
    template <auto... Before>
    static constexpr auto after(operation_list<Before...>) {
        static_assert(sizeof...(Before) < Next,
                      "the slot lies before the operations that stand in front of it");
        return []<std::size_t... I>(std::index_sequence<I...>) {
            return operation_list<Before..., (static_cast<void>(I), Operation)...>{};
        }
        (std::make_index_sequence<Next - 1 - sizeof...(Before)>{});
    }
};

template <auto Item>
struct appended {};

template <auto... Before, auto Item>
constexpr auto operator+(operation_list<Before...> before, appended<Item>) {
    if constexpr (std::is_member_function_pointer_v<decltype(Item)>)
        return operation_list<Before..., Item>{};
    else
        return Item.after(before);
}

}  // namespace detail

/// In a list: `Operation` in every slot up to the one before `Next`.
template <auto Operation, std::size_t Next>
inline constexpr detail::filler<Operation, Next> until{};

/// A table's operations: `operations<&I::first, until<&I::reserved, 5>, &I::fifth>`.
template <auto... Items>
using operations = decltype((operation_list<>{} + ... + detail::appended<Items>{}));

namespace detail {

template <auto A, auto B>
constexpr bool same_operation =
    std::is_same_v<std::integral_constant<decltype(A), A>, std::integral_constant<decltype(B), B>>;

/// First slot of an operation within the list of its interface; 0 when it is not there.
template <auto Operation, auto... All>
constexpr std::size_t slot_in(operation_list<All...>) {
    std::size_t slot = 0;
    bool found = false;
    ((found = found || (++slot, same_operation<Operation, All>)), ...);
    return found ? slot : 0;
}

template <class Member>
struct signature;

template <class C, class R, class... A>
struct signature<R (C::*)(A...)> {
    using owner = C;
    using result = R;
    using function = R (*)(const void* table, void* object, A...);
};

}  // namespace detail

/// Table slot of an operation of the interface that declares it: `slot_of<&label_impl::enabled>`.
template <auto Operation>
inline constexpr std::size_t slot_of =
    detail::slot_in<Operation>(typename detail::signature<decltype(Operation)>::owner::table{});

}  // namespace ox
