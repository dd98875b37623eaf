#pragma once
/// What becomes of an exception at the border: it ends here, and the operation answers its type's empty
/// value.

#include <cstddef>
#include <exception>

namespace ox {

/// An exception that was kept from crossing the border.
struct border_fault {
    const char* place;  ///< the interface's name, or the function that crosses
    std::size_t slot;   ///< of the interface's table; 0 for `polymorphic`, `query` and plain functions
    const char* what;   ///< the exception's own words, valid for the call
};

/// Told of every fault of this library or program; null, as at first, keeps silent. Must not throw. [ui]
inline void (*on_border_fault)(const border_fault&) = nullptr;

/// Answers what `work` answers, or the empty value of its type when it throws. The one catch-all of the
/// border.
template <class Work>
auto at_border(const char* place, std::size_t slot, Work&& work) noexcept -> decltype(work()) {
    const auto tell = [&](const char* what) {
        if (on_border_fault) on_border_fault({place, slot, what});
    };
    try {
        return work();
    } catch (const std::exception& fault) {
        tell(fault.what());
    } catch (...) {
        tell("an exception of an unknown type");
    }
    return decltype(work())();
}

}  // namespace ox
