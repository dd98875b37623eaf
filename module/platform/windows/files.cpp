#include <cwchar>
#include <string_view>

#include "platform/platform.h"

namespace ox::platform {

std::FILE* open_file(const wchar_t* path, const char* mode) {
    if (!path || !mode) return nullptr;  // the C library would end the process
    const std::string_view ascii(mode);
    std::FILE* file = nullptr;
    const auto error = _wfopen_s(&file, path, std::wstring(ascii.begin(), ascii.end()).c_str());
    return error == 0 ? file : nullptr;
}

}  // namespace ox::platform
