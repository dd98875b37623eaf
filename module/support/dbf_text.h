#pragma once
/// Text helpers of the table layer. A text that one of them returns lies in a buffer that all share and
/// lives until the next call. A null text reads as "". [ui]

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace ox {

/// Without blanks, carriage returns, tabs and line feeds at both ends.
const char* trim_text(const char* text);

/// Order of the trimmed texts without regard to case; null sorts before every text.
int compare_trimmed(const char* a, const char* b);

/// Whether the trimmed text is "t", "true", "1", "y" or "f", "false", "0", "n", in any case. `value` is
/// false where it is none of them.
bool parse_bool_text(const char* text, bool& value);

/// "%d" and "%g", or a printf format with one conversion of that type; "." is the decimal point always.
const char* format_int(std::int32_t value, const char* format = "%d");
const char* format_double(double value, const char* format = "%g");

/// Position of the first equal text, without regard to case.
std::optional<std::size_t> find_text(std::span<const std::string> list, const char* text);

}  // namespace ox
