#include "base/text.h"

#include <algorithm>

namespace oxhost {

namespace {

constexpr char32_t replacement = 0xFFFD;

bool is_surrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

void append_utf8(std::string& out, char32_t c) {
    if (c > 0x10FFFF || is_surrogate(c)) c = replacement;
    const int tail = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr unsigned lead[] = {0x00, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(lead[tail] | (c >> (6 * tail)));
    for (int i = tail - 1; i >= 0; --i) out += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
}

void append_wide(std::wstring& out, char32_t c) {
    if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
        out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        out += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        out += static_cast<wchar_t>(c);
    }
}

/// Takes one character off the front of `text`. A malformed sequence is taken as far as it could
/// have been the beginning of a character.
char32_t take_utf8(std::string_view& text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || first > 0xF4) return text.remove_prefix(1), replacement;
    if (length == 1) return text.remove_prefix(1), first;

    char32_t c = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        // The second byte's range excludes overlong forms, surrogates and what lies beyond U+10FFFF.
        const unsigned low = i > 1 ? 0x80u : first == 0xE0 ? 0xA0u : first == 0xF0 ? 0x90u : 0x80u;
        const unsigned high = i > 1 ? 0xBFu : first == 0xED ? 0x9Fu : first == 0xF4 ? 0x8Fu : 0xBFu;
        if (i == text.size() || byte(i) < low || byte(i) > high) return text.remove_prefix(i), replacement;
        c = (c << 6) | (byte(i) & 0x3Fu);
    }
    return text.remove_prefix(length), c;
}

}  // namespace

std::string to_utf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto c = static_cast<char32_t>(text[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            c &= 0xFFFF;
            const char32_t next = i + 1 < text.size() ? static_cast<char32_t>(text[i + 1]) & 0xFFFF : 0;
            if ((c & 0xFC00) == 0xD800 && (next & 0xFC00) == 0xDC00) {
                c = 0x10000 + ((c & 0x3FF) << 10) + (next & 0x3FF);
                ++i;
            }
        }
        append_utf8(out, c);
    }
    return out;
}

std::string to_utf8(const wchar_t* text) { return text ? to_utf8(std::wstring_view(text)) : std::string(); }

std::wstring to_wide(std::string_view text) {
    std::wstring out;
    out.reserve(text.size());
    while (!text.empty()) append_wide(out, take_utf8(text));
    return out;
}

std::size_t character_count(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace oxhost
