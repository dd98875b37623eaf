#pragma once
/// Numbers as texts, whatever the locale.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace oxhost {

/// A whole text as a finite number, a "+" in front allowed; nothing when something is left over.
std::optional<double> parse_number(std::string_view text);

/// A whole text of digits, perhaps after a "-".
std::optional<std::int64_t> parse_whole_number(std::string_view text);

/// Shortest digits that read back as the same number.
std::string number_text(double number);

}  // namespace oxhost
