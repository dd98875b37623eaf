#pragma once
/// Named text encodings and the conversions between narrow and wide texts.
///
/// Wide text is what the host and the dialogs speak; narrow text is proj4 texts (UTF-8), catalogue
/// texts, file paths and messages (the system's ANSI code page). Nothing is reported: a conversion
/// that fails gives an empty text.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace ox {

struct text_encoding {
    const char* name;
    const char* alias;
    unsigned code_page;  ///< Windows code page number; 0 is the system's ANSI code page
};

/// Rows are addressed by their index. The UTF-16 and UTF-32 rows have no code page of their own and
/// convert like "SYSTEM". "UTF-32LE" and "UTF-32BE" carry each other's name as alias, under which other
/// programs look them up.
inline constexpr std::array<text_encoding, 19> text_encodings{{
    {"UTF-8", "UTF-8", 65001},
    {"UTF-16", "UTF-16", 0},
    {"UTF-16LE", "UTF-16LE", 0},
    {"UTF-16BE", "UTF-16BE", 0},
    {"UTF-32", "UTF-32", 0},
    {"UTF-32LE", "UTF-32BE", 0},
    {"UTF-32BE", "UTF-32LE", 0},
    {"CP1250", "Windows-1250", 1250},
    {"CP1251", "Windows-1251", 1251},
    {"CP1252", "Windows-1252", 1252},
    {"CP1253", "Windows-1253", 1253},
    {"CP1254", "Windows-1254", 1254},
    {"CP1255", "Windows-1255", 1255},
    {"CP1256", "Windows-1256", 1256},
    {"CP1257", "Windows-1257", 1257},
    {"CP1258", "Windows-1258", 1258},
    {"CP866", "OEM 866", 866},
    {"ASCII", "US-ASCII", 20127},
    {"SYSTEM", "ANSI", 0},
}};

inline constexpr std::size_t encoding_utf8 = 0;
inline constexpr std::size_t encoding_system = 18;

/// `length` counts characters and is not bounded by a NUL. A null text, and an encoding that the table
/// does not hold, give an empty text.
std::wstring to_wide(const char* text, std::size_t length, std::size_t encoding);
std::string to_narrow(const wchar_t* text, std::size_t length, std::size_t encoding);

inline std::wstring system_to_wide(std::string_view text) {
    return to_wide(text.data(), text.size(), encoding_system);
}
inline std::string wide_to_system(std::wstring_view text) {
    return to_narrow(text.data(), text.size(), encoding_system);
}
inline std::wstring utf8_to_wide(std::string_view text) {
    return to_wide(text.data(), text.size(), encoding_utf8);
}
inline std::string wide_to_utf8(std::wstring_view text) {
    return to_narrow(text.data(), text.size(), encoding_utf8);
}

}  // namespace ox
