// Files, functions of loaded libraries, pixel memory.

#include <cwchar>
#include <string_view>

#include "platform/windows/win32.h"

namespace ox::platform {

std::FILE* open_file(const wchar_t* path, const char* mode) {
    if (!path || !mode) return nullptr;  // the C library would end the process
    const std::string_view ascii(mode);
    std::FILE* file = nullptr;
    const auto error = _wfopen_s(&file, path, std::wstring(ascii.begin(), ascii.end()).c_str());
    return error == 0 ? file : nullptr;
}

void* find_host_function(const char* module, const char* function) {
    const HMODULE loaded = GetModuleHandleA((std::string(module) + ".dll").c_str());
    return loaded ? reinterpret_cast<void*>(GetProcAddress(loaded, function)) : nullptr;
}

void free_pixels::operator()(std::uint8_t* pixels) const { VirtualFree(pixels, 0, MEM_RELEASE); }

pixel_memory allocate_pixels(std::size_t bytes) {
    void* memory = bytes ? VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE) : nullptr;
    return pixel_memory(static_cast<std::uint8_t*>(memory));
}

}  // namespace ox::platform
