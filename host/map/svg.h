#pragma once
/// Bits of SVG.

#include <string>
#include <string_view>

namespace oxhost::app::svg {

/// As text between tags or in an attribute: escaped, without control characters or broken UTF-8.
std::string text(std::string_view plain);

/// A length in the picture's units, to a tenth.
std::string number(double units);

}  // namespace oxhost::app::svg
