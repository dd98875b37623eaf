#pragma once
/// Numbers in texts, read and written the same under every locale: the decimal point is ".", nothing is
/// grouped. The rules are those of scanf and printf in the "C" locale.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ox {

/// "%d": white space, a sign, decimal digits; what follows is left alone. Beyond 32 bits the nearest
/// limit is answered.
std::optional<std::int32_t> scan_int(std::string_view text);

/// "%lg": white space, a sign, then a decimal or hexadecimal number, "inf", "infinity" or "nan"; what
/// follows is left alone. Too large gives an infinity, too small gives 0.
std::optional<double> scan_double(std::string_view text);

/// "%d".
void append_int(std::string& out, std::int32_t value);

/// "%.<precision>lg", significant digits.
void append_general(std::string& out, double value, int precision);

/// "%<width>.<decimals>f": padded with blanks on the left, longer when the number does not fit.
std::string fixed_text(double value, int width, int decimals);

/// The integer part; the smallest 32-bit integer for what has none or does not fit.
std::int32_t truncated(double value);

}  // namespace ox
