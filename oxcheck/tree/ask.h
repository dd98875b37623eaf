#pragma once
/// Asks an object every operation of its table, for the whole count where an operation takes an index.

#include <array>
#include <stdexcept>
#include <tuple>

#include "oxcheck/tree/element.h"

namespace oxcheck {

/// An exception came out of an entry.
struct exception_left : std::runtime_error {
    using std::runtime_error::runtime_error;
};

namespace detail {

/// How far the index arguments of a slot go; an operation without such arguments is called once.
using limits = std::array<std::int64_t, 2>;

template <class I>
limits index_limits(custom_pointer p, std::size_t slot) {
    (void)p, (void)slot;
    if constexpr (std::is_same_v<I, ox::grid_layout_impl>) {
        const std::int64_t columns = ox::call<&I::column_count>(p), rows = ox::call<&I::row_count>(p);
        const bool of_rows = slot == ox::slot_of<&I::row_expands> || slot == ox::slot_of<&I::row_value> ||
                             slot == ox::slot_of<&I::row_shown>;
        return of_rows ? limits{rows, rows} : limits{columns, rows};
    } else if constexpr (std::is_same_v<I, ox::stack_layout_impl>) {
        return {ox::call<&I::child_count>(p), 0};
    } else if constexpr (std::is_same_v<I, ox::dropdown_impl>) {
        return {ox::call<&I::item_count>(p), 0};
    } else if constexpr (std::is_same_v<I, ox::outline_impl>) {
        return {ox::call<&I::column_count>(p), 0};
    } else if constexpr (std::is_same_v<I, ox::button_box_impl>) {
        return {ox::call<&I::count>(p), 0};
    } else {
        return {1, 1};
    }
}

template <class T>
constexpr bool is_index = std::is_integral_v<T> && !std::is_same_v<T, bool>;

/// A value for an argument: pointers get the neighbour, indexes the next number.
template <class T>
T argument(custom_pointer neighbour, const limits& indexes, std::size_t& next) {
    if constexpr (std::is_same_v<T, custom_pointer>)
        return neighbour;
    else if constexpr (is_index<T>)
        return static_cast<T>(indexes[next++]);
    else if constexpr (std::is_same_v<T, const wchar_t*>)
        return L"";
    else
        return T{};
}

template <class I, class C, class R, class... A>
void ask_slot(custom_pointer p, std::size_t slot, R (C::*)(A...), [[maybe_unused]] custom_pointer neighbour) {
    using function = R (*)(const void*, void*, A...);
    constexpr int indexes = (0 + ... + int{is_index<A>});
    const limits ends = index_limits<I>(p, slot);
    for (std::int64_t i = 0; i < (indexes > 0 ? ends[0] : 1); ++i)
        for (std::int64_t j = 0; j < (indexes > 1 ? ends[1] : 1); ++j) {
            [[maybe_unused]] std::size_t next = 0;
            [[maybe_unused]] const limits at{i, j};
            // Braces: the arguments are made from left to right.
            const std::tuple<A...> arguments{argument<A>(neighbour, at, next)...};
            try {
                std::apply(
                    [&](A... each) {
                        ox::detail::function_at<function>(p, slot)(p.table, p.object, each...);
                    },
                    arguments);
            } catch (...) {
                throw exception_left("slot " + std::to_string(slot) + " of " + name_of<I>());
            }
        }
}

template <class I, auto... Operations>
void ask_slots(custom_pointer p, custom_pointer neighbour, std::size_t count,
               ox::operation_list<Operations...>) {
    std::size_t slot = 0;
    ((++slot <= count ? ask_slot<I>(p, slot, Operations, neighbour) : void()), ...);
}

}  // namespace detail

/// `neighbour` is handed in wherever a pointer is taken: a visitor, a view, an item, or an empty pointer.
/// The last operation of a menu's tool, which ends it, is left to `open_menu`.
inline void ask_everything(const element& each, custom_pointer neighbour) {
    if (each.outline && rows_of(each) == 0) return;  // an empty item stands for row 0
    with_kind_of(each, [&]<class I>() {
        detail::ask_slots<I>(each.pointer, neighbour, I::table::count - (each.in_menu ? 1 : 0),
                             typename I::table{});
    });
}

}  // namespace oxcheck
