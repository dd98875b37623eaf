#include "platform/windows/win32.h"

/// Placed by the linker at the base address of the file that this code is linked into, which is that
/// file's module handle.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace ox::platform {

resource_module own_module() { return &__ImageBase; }

resource_module basic_module() { return GetModuleHandleW(L"oxk_basic.dll"); }

resource_text load_string(resource_module module, std::uint32_t id) {
    if (!module) return {};
    // With no room for a copy the call answers where the text lies in the resource.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(as_handle(module), id, reinterpret_cast<wchar_t*>(&text), 0);
    if (length <= 0 || !text) return {};
    if (text[length - 1] == L'\0') return resource_text(text);
    // Most string tables store no terminating zero.
    return resource_text(std::wstring(text, static_cast<std::size_t>(length)));
}

std::optional<std::string> load_raw_text(resource_module module, std::uint32_t id) {
    constexpr std::uint32_t raw_text_type = 260;
    if (!module) return std::nullopt;
    const HMODULE handle = as_handle(module);
    const HRSRC found = FindResourceW(handle, numbered(id), numbered(raw_text_type));
    const HGLOBAL loaded = found ? LoadResource(handle, found) : nullptr;
    const void* bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes) return std::nullopt;
    return std::string(static_cast<const char*>(bytes), SizeofResource(handle, found));
}

}  // namespace ox::platform
