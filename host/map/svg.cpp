#include "map/svg.h"

#include <cmath>

#include "base/numbers.h"
#include "base/utf8.h"

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

std::string number(double units) { return number_text(std::round(units * 10) / 10); }

}  // namespace oxhost::app::svg
