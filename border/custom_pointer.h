#pragma once
/// The only form in which objects cross a module border.

#include <compare>
#include <cstdint>
#include <type_traits>

namespace ox {

/// A table of plain functions and the object they act on. Copied by value, owns nothing; empty when
/// either word is null, and an empty pointer is never called through.
/// Stays trivial: it is passed and returned in the platform's C calling convention.
struct custom_pointer {
    const void* table;
    void* object;

    explicit operator bool() const { return table && object; }

    friend bool operator==(const custom_pointer&, const custom_pointer&) = default;
    /// By the addresses, table first.
    friend std::strong_ordering operator<=>(const custom_pointer& a, const custom_pointer& b) {
        if (const auto order = address(a.table) <=> address(b.table); std::is_neq(order)) return order;
        return address(a.object) <=> address(b.object);
    }

private:
    static std::uintptr_t address(const void* p) { return reinterpret_cast<std::uintptr_t>(p); }
};

static_assert(std::is_trivial_v<custom_pointer> && std::is_standard_layout_v<custom_pointer>);
static_assert(sizeof(custom_pointer) == 2 * sizeof(void*));

}  // namespace ox
