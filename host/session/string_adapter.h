#pragma once
/// The host side of string adapters: through them every host function hands out its texts.

#include <string>
#include <string_view>

namespace oxhost {

/// What an adapter handle points at. Created and destroyed through the functions of oxk_basic.
struct string_adapter {
    void (*narrow)(const char* text, void* context);
    void (*wide)(const wchar_t* text, void* context);
    void* context;
};

/// Hands `text` (UTF-8) to the adapter as wide text; a null handle is ignored.
void deliver(void* adapter, std::string_view text);

/// UTF-8 inside the host, wide at its border. Malformed input gives U+FFFD.
std::string to_utf8(std::wstring_view text);
std::wstring to_wide(std::string_view text);

/// For the pointers that cross the border: null reads as empty.
std::string to_utf8(const wchar_t* text);

}  // namespace oxhost
