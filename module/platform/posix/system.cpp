// Files, functions of loaded libraries, pixel memory.

#include <dlfcn.h>

#include <cstdlib>
#include <cwchar>

#include "platform/platform.h"

namespace ox::platform {

std::FILE* open_file(const wchar_t* path, const char* mode) {
    if (!path || !mode) return nullptr;
    const std::wstring wanted(path);
    const std::string narrow = to_narrow(wanted.data(), wanted.size(), 0);
    // A path that the locale cannot spell would open (or write) some other file.
    if (to_wide(narrow.data(), narrow.size(), 0) != wanted) return nullptr;
    return std::fopen(narrow.c_str(), mode);
}

/// The functions of all host modules share one name space here, so the module's name is not needed.
void* find_host_function(const char*, const char* function) { return dlsym(RTLD_DEFAULT, function); }

void free_pixels::operator()(std::uint8_t* pixels) const { std::free(pixels); }

pixel_memory allocate_pixels(std::size_t bytes) {
    return pixel_memory(bytes ? static_cast<std::uint8_t*>(std::calloc(bytes, 1)) : nullptr);
}

}  // namespace ox::platform
