#pragma once
/// Holds the two listings of the border against each other while they are compiled: the bindings of C++ and
/// the structs of border/c, which are written independently. A pin names every operation of an interface:
///
///     OX_PIN(label, OX_LABEL_INTERFACE, enabled, visit_caption, attach_view);
///
/// and then `ox::label_impl` and `ox_label_table` have the same name and number of slots, each operation
/// named stands in the same slot of both with the same arguments and result, and every slot that is not named
/// is a spare one (`reserved_<slot>`, `other_<slot>`) on both sides. An operation that is forgotten on either
/// side, or stands in the place of another, does not compile.

#include <array>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "border/c/ox_pointer.h"
#include "border/call.h"

namespace ox::pin {

// ---- The C++ listing: all that the pins ask of it --------------------------------------------------------

/// C's spelling of a type.
template <class T>
struct spelled_in_c {
    using type = T;
};
template <>
struct spelled_in_c<custom_pointer> {
    using type = ox_pointer;
};

template <class Operation>
struct entry;
template <class I, class R, class... A>
struct entry<R (I::*)(A...)> {
    using type = typename spelled_in_c<R>::type (*)(const void*, void*, typename spelled_in_c<A>::type...);
};
/// Type of the table entry of an operation, as C spells it.
template <auto Operation>
using entry_of = typename entry<decltype(Operation)>::type;

template <class Operations>
struct listing;
template <auto... All>
struct listing<operation_list<All...>> {
    static constexpr std::size_t count = sizeof...(All);
    using entries = std::tuple<entry_of<All>...>;
    template <auto Operation>
    static constexpr std::size_t places = (0 + ... + std::size_t{detail::same_operation<Operation, All>});
};
template <class I>
using listing_of = listing<typename I::table>;

/// Slot of an operation; 0 when it does not stand in exactly one.
template <class I, auto Operation>
constexpr std::size_t slot_of = listing_of<I>::template places<Operation> == 1 ? ox::slot_of<Operation> : 0;

// ---- The C listing ----------------------------------------------------------------------------------------

/// The spare member of a table for a slot, if it has one.
template <class Table, std::size_t Slot>
struct spare {
    static constexpr std::size_t slot = 0;
    using type = void;
};

#define OX_SPARE_NAMED(member, number)                                               \
    template <class Table>                                                           \
    requires requires { &Table::member; }                                            \
    struct spare<Table, number> {                                                    \
        static constexpr std::size_t slot = offsetof(Table, member) / sizeof(void*); \
        using type = decltype(Table::member);                                        \
    };
#define OX_SPARE(number)                      \
    OX_SPARE_NAMED(reserved_##number, number) \
    OX_SPARE_NAMED(other_##number, number)
// clang-format off
OX_SPARE(1) OX_SPARE(2) OX_SPARE(3) OX_SPARE(4) OX_SPARE(5) OX_SPARE(6) OX_SPARE(7) OX_SPARE(8) OX_SPARE(9)
OX_SPARE(10) OX_SPARE(11) OX_SPARE(12) OX_SPARE(13) OX_SPARE(14) OX_SPARE(15) OX_SPARE(16) OX_SPARE(17)
OX_SPARE(18) OX_SPARE(19) OX_SPARE(20) OX_SPARE(21) OX_SPARE(22) OX_SPARE(23) OX_SPARE(24) OX_SPARE(25)
OX_SPARE(26) OX_SPARE(27) OX_SPARE(28) OX_SPARE(29) OX_SPARE(30) OX_SPARE(31) OX_SPARE(32) OX_SPARE(33)
OX_SPARE(34) OX_SPARE(35)
#undef OX_SPARE
#undef OX_SPARE_NAMED

/// The C++ listing may answer a number where C promises nothing: nobody reads it.
template <class InC, class InCpp>
constexpr bool spare_fits =
    std::is_same_v<InC, InCpp> || (std::is_same_v<InC, void (*)(const void*, void*)> &&
                                   std::is_same_v<InCpp, std::size_t (*)(const void*, void*)>);

template <class I, class Table, std::size_t Slot>
constexpr bool is_spare =
    spare<Table, Slot>::slot == Slot &&
    spare_fits<typename spare<Table, Slot>::type,
               std::tuple_element_t<Slot - 1, typename listing_of<I>::entries>>;
// clang-format on

/// Is every slot either among those named (slot 0 always is) or a spare one?
template <class I, class Table, std::size_t N>
constexpr bool covers(const std::array<std::size_t, N>& named) {
    const auto is_named = [&named](std::size_t slot) {
        for (const std::size_t each : named)
            if (each == slot) return true;
        return false;
    };
    return [&]<std::size_t... Before>(std::index_sequence<Before...>) {
        return (... && (is_named(Before + 1) != is_spare<I, Table, Before + 1>));
    }
    (std::make_index_sequence<listing_of<I>::count>{});
}

}  // namespace ox::pin

// ---- The pins ---------------------------------------------------------------------------------------------

/// OX_EACH(macro, a, b, x, y): macro(a, b, x) macro(a, b, y)
#define OX_NOTHING ()
#define OX_EXPAND(...) OX_EXPAND_3(OX_EXPAND_3(OX_EXPAND_3(OX_EXPAND_3(__VA_ARGS__))))
#define OX_EXPAND_3(...) OX_EXPAND_2(OX_EXPAND_2(OX_EXPAND_2(OX_EXPAND_2(__VA_ARGS__))))
#define OX_EXPAND_2(...) __VA_ARGS__
#define OX_EACH(macro, a, b, ...) __VA_OPT__(OX_EXPAND(OX_EACH_STEP(macro, a, b, __VA_ARGS__)))
#define OX_EACH_STEP(macro, a, b, x, ...) \
    macro(a, b, x) __VA_OPT__(OX_EACH_AGAIN OX_NOTHING(macro, a, b, __VA_ARGS__))
#define OX_EACH_AGAIN() OX_EACH_STEP

#define OX_SLOT_IN_C(binding, table, operation) (offsetof(table, operation) / sizeof(void*)),

#define OX_PIN_OPERATION(binding, table, operation)                                                   \
    static_assert(                                                                                    \
        ox::pin::slot_of<binding, &binding::operation> == offsetof(table, operation) / sizeof(void*), \
        #operation " stands in another slot of " #table " than of " #binding);                        \
    static_assert(std::is_same_v<decltype(table::operation), ox::pin::entry_of<&binding::operation>>, \
                  #operation " has another signature in " #table " than in " #binding);

/// An interface that is not asked for by name.
#define OX_PIN_TABLE(binding, table, ...)                                                               \
    OX_EACH(OX_PIN_OPERATION, binding, table, __VA_ARGS__)                                              \
    static_assert(offsetof(table, polymorphic) == 0 &&                                                  \
                      std::is_same_v<decltype(table::polymorphic), ox_pointer (*)(const void*, void*)>, \
                  #table " does not begin with polymorphic");                                           \
    static_assert(sizeof(table) == (1 + ox::pin::listing_of<binding>::count) * sizeof(void*),           \
                  #table " and " #binding " have different numbers of slots");                          \
    static_assert(ox::pin::covers<binding, table>(                                                      \
                      std::array{std::size_t{0}, OX_EACH(OX_SLOT_IN_C, binding, table, __VA_ARGS__)}),  \
                  "a slot of " #table                                                                   \
                  " is neither pinned nor spare, or is spare in another way than in " #binding)

#define OX_PIN_NAME(words, c_name) \
    static_assert(ox::words::name.view() == std::string_view(c_name), #c_name " is another name")

#define OX_PIN(words, c_name, ...) \
    OX_PIN_NAME(words, c_name);    \
    OX_PIN_TABLE(ox::words##_impl, ox_##words##_table, __VA_ARGS__)
