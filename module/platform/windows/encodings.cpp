#include <limits>

#include "platform/windows/win32.h"

namespace ox::platform {
namespace {

/// Asks `convert(out, room)` for the length, then for the text; empty unless both agree.
template <class Out, class Convert>
std::basic_string<Out> converted(std::size_t length, Convert convert) {
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max())) return {};
    const int needed = convert(nullptr, 0);
    if (needed <= 0) return {};
    std::basic_string<Out> out(static_cast<std::size_t>(needed), Out());
    if (convert(out.data(), needed) != needed) return {};
    return out;
}

}  // namespace

std::wstring to_wide(const char* text, std::size_t length, unsigned code_page) {
    if (!text) return {};
    return converted<wchar_t>(length, [&](wchar_t* out, int room) {
        return MultiByteToWideChar(code_page, 0, text, static_cast<int>(length), out, room);
    });
}

std::string to_narrow(const wchar_t* text, std::size_t length, unsigned code_page) {
    if (!text) return {};
    return converted<char>(length, [&](char* out, int room) {
        return WideCharToMultiByte(code_page, 0, text, static_cast<int>(length), out, room, nullptr, nullptr);
    });
}

}  // namespace ox::platform
