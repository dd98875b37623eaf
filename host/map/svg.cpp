#include "map/svg.h"

#include <cmath>

#include "base/numbers.h"
#include "base/text.h"

namespace oxhost::map::svg {

namespace {

std::string attribute(std::string_view name, std::string_view value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

std::string size_of(double width, double height) {
    return attribute("width", number(width)) + attribute("height", number(height));
}

}  // namespace

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

std::string pair(double x, double y) { return number(x) + ' ' + number(y); }

std::string text_element(std::string_view look, double x, double y, std::string_view plain,
                         std::string_view anchor) {
    return "<text" + attribute("class", look) + attribute("x", number(x)) + attribute("y", number(y)) +
           (anchor.empty() ? "" : attribute("text-anchor", anchor)) + '>' + text(plain) + "</text>\n";
}

std::string path_element(std::string_view look, std::string_view path) {
    return "<path" + attribute("class", look) + attribute("d", path) + "/>\n";
}

std::string rectangle_element(std::string_view look, const rectangle& place, double corner_radius) {
    return "<rect" + attribute("class", look) + attribute("x", number(place.x)) +
           attribute("y", number(place.y)) + size_of(place.width, place.height) +
           (corner_radius > 0 ? attribute("rx", number(corner_radius)) : "") + "/>\n";
}

std::string document(double width, double height, std::string_view style, std::string_view body) {
    const std::string box = attribute("viewBox", "0 0 " + pair(width, height));
    return "<svg xmlns=\"http://www.w3.org/2000/svg\"" + size_of(width, height) + box + ">\n" +
           std::string(style) + "<rect" + size_of(width, height) + " fill=\"#ffffff\"/>\n" +
           std::string(body) + "</svg>\n";
}

}  // namespace oxhost::map::svg
