#pragma once
/// How the host's C functions meet the border: no exception leaves one, and who runs the host hears of those
/// that were kept back; texts go out through adapters. [ui]

#include <string_view>
#include <utility>

#include "base/text.h"
#include "border/fault.h"

namespace oxhost {

using fault_listener = void (*)(const ox::border_fault& fault);

/// Told of every fault in this process: in C functions of the host's modules, in what the shell serves, in
/// bundles that report theirs. Null, as at first, keeps silent. Must not throw.
void listen_to_faults(fault_listener listener);

/// Hands a fault to the listener. The border's hook is a variable of each library and program; those of the
/// host point here.
void tell_fault(const ox::border_fault& fault);

/// Answers what `work` answers, or its type's zero when it throws. `function` is the C function by its name,
/// which its helpers hand on. (std::source_location would do, if clang 14 had it.)
template <class Work>
auto at_border(Work&& work, const char* function = __builtin_FUNCTION()) noexcept {
    ox::on_border_fault = tell_fault;  // that of the library which is asked
    return ox::at_border(function, 0, std::forward<Work>(work));
}

/// What an adapter handle points at. Created and destroyed through the functions of oxk_basic.
struct string_adapter {
    void (*narrow)(const char* text, void* context);
    void (*wide)(const wchar_t* text, void* context);
    void* context;
};

/// Hands `text` (UTF-8) to the adapter as wide text; a null handle is ignored.
inline void deliver(void* adapter, std::string_view text) {
    const auto* target = static_cast<const string_adapter*>(adapter);
    if (target && target->wide) target->wide(to_wide(text).c_str(), target->context);
}

}  // namespace oxhost
