#include "app/svg.h"

#include <charconv>
#include <cmath>

#include "session/string_adapter.h"

namespace oxhost::app::svg {

std::string text(std::string_view plain) {
    std::string escaped;
    for (const char c : to_utf8(to_wide(plain))) switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += static_cast<unsigned char>(c) < ' ' ? ' ' : c;
        }
    return escaped;
}

std::string number(double units) {
    const double tenths = std::round(units * 10);
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, tenths / 10).ptr;
    return tenths == 0 ? "0" : std::string(digits, end);
}

}  // namespace oxhost::app::svg
