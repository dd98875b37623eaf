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

}  // namespace ox::platform
