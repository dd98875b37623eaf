#pragma once
/// Russian texts, readable in the source and stored in code page 1251.

#include <algorithm>
#include <cstddef>

namespace ox {

/// The character in code page 1251. Not a constant expression for what that page lacks, or what no
/// Russian text needs.
constexpr char to_cp1251(char32_t c) {
    if (c < 0x80) return static_cast<char>(c);
    if (c >= U'А' && c <= U'я') return static_cast<char>(0xC0 + (c - U'А'));
    if (c == U'Ё') return static_cast<char>(0xA8);
    if (c == U'ё') return static_cast<char>(0xB8);
    if (c == U'№') return static_cast<char>(0xB9);
    throw "no Russian letter";
}

template <std::size_t size>
struct cp1251_text {
    char bytes[size];
    // NOLINTNEXTLINE(google-explicit-constructor): a template argument converts to it
    constexpr cp1251_text(const char32_t (&text)[size]) : bytes{} {
        std::transform(text, text + size, bytes, to_cp1251);
    }
};

/// `cp1251<U"текст">`: NUL-terminated, lives as long as the program.
template <cp1251_text text>
inline constexpr const char* cp1251 = text.bytes;

}  // namespace ox
