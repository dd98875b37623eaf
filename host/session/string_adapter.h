#pragma once
/// The host side of string adapters: through them every host function hands out its texts.

#include <string_view>

#include "base/utf8.h"

namespace oxhost {

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
