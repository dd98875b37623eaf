#include "support/encodings.h"

#include "platform/platform.h"

namespace ox {

std::wstring to_wide(const char* text, std::size_t length, std::size_t encoding) {
    if (!text || length == 0 || encoding >= text_encodings.size()) return {};
    return platform::to_wide(text, length, text_encodings[encoding].code_page);
}

std::string to_narrow(const wchar_t* text, std::size_t length, std::size_t encoding) {
    if (!text || length == 0 || encoding >= text_encodings.size()) return {};
    return platform::to_narrow(text, length, text_encodings[encoding].code_page);
}

}  // namespace ox
