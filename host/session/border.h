#pragma once
/// The catch-all behind every C function of the host: no exception leaves one.

#include <utility>

#include "session/faults.h"

namespace oxhost {

/// Of the library that includes this.
[[maybe_unused]] inline const bool faults_are_told = (ox::on_border_fault = tell_fault, true);

/// Answers what `work` answers, or its type's zero when it throws. `function` is the C function by its name,
/// which its helpers hand on. (std::source_location would do, if clang 14 had it.)
template <class Work>
auto at_border(Work&& work, const char* function = __builtin_FUNCTION()) noexcept {
    return ox::at_border(function, 0, std::forward<Work>(work));
}

}  // namespace oxhost
