#pragma once
/// The catch-all behind every C function of the host: no exception leaves one.

namespace oxhost {

/// Answers what `work` answers, or its type's zero when it throws.
template <class Work>
auto at_border(Work&& work) noexcept -> decltype(work()) {
    try {
        return work();
    } catch (...) {
        return decltype(work())();
    }
}

}  // namespace oxhost
