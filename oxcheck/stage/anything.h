#pragma once
/// A neighbour of no particular kind: whatever slot is called, with whatever arguments, it counts the call
/// and answers one number. Serves as a visitor, view, window or item (whose row is the number) where only
/// the calls matter. In the calling conventions of the supported platforms the caller cleans up arguments,
/// so that a function which takes fewer of them may stand in.

#include <array>
#include <cstddef>

#include "border/custom_pointer.h"

namespace oxcheck {

class anything {
public:
    explicit anything(std::size_t number = 0) : number_(number) {}
    anything(const anything&) = delete;
    anything& operator=(const anything&) = delete;

    ox::custom_pointer pointer() { return {table().data(), this}; }
    std::size_t calls() const { return calls_; }
    /// Of tables whose object word was empty, which makes a pointer that must not be called through.
    static std::size_t& calls_without_object() {
        static std::size_t calls = 0;
        return calls;
    }

private:
    static std::size_t answer(const void*, void* object) {
        auto* self = static_cast<anything*>(object);
        if (!self) return ++calls_without_object();
        ++self->calls_;
        return self->number_;
    }
    static ox::custom_pointer polymorphic(const void*, void* object) {
        return {query_table().data(), object};
    }
    static void query(const void*, void*, const char*, const void** table, void** object) {
        *table = nullptr;
        *object = nullptr;
    }

    /// More slots than any interface that is handed in has.
    static const std::array<const void*, 64>& table() {
        static const auto made = [] {
            std::array<const void*, 64> slots;
            slots.fill(reinterpret_cast<const void*>(&answer));
            slots[0] = reinterpret_cast<const void*>(&polymorphic);
            return slots;
        }();
        return made;
    }
    static const std::array<const void*, 1>& query_table() {
        static const std::array<const void*, 1> made{reinterpret_cast<const void*>(&query)};
        return made;
    }

    std::size_t number_;
    std::size_t calls_ = 0;
};

}  // namespace oxcheck
