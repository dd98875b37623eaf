#pragma once
/// Elements of an SVG picture. Lengths and places are in its units, y downwards.

#include <string>
#include <string_view>

namespace oxhost::map {

struct rectangle {
    double x, y, width, height;

    bool overlaps(const rectangle& other) const {
        return x < other.x + other.width && other.x < x + width && y < other.y + other.height &&
               other.y < y + height;
    }
    bool contains(const rectangle& other) const {
        return other.x >= x && other.y >= y && other.x + other.width <= x + width &&
               other.y + other.height <= y + height;
    }
    rectangle grown(double room) const { return {x - room, y - room, width + 2 * room, height + 2 * room}; }
};

namespace svg {

/// As text between tags or in an attribute: escaped, without control characters or broken UTF-8.
std::string text(std::string_view plain);

/// A length, to a tenth.
std::string number(double units);
/// "x y"
std::string pair(double x, double y);

// `look` is the element's class.
/// The text begins at x, or lies around it as `anchor` says; y is its baseline.
std::string text_element(std::string_view look, double x, double y, std::string_view plain,
                         std::string_view anchor = {});
std::string path_element(std::string_view look, std::string_view path);
std::string rectangle_element(std::string_view look, const rectangle& place, double corner_radius = 0);
/// The whole picture on a white ground.
std::string document(double width, double height, std::string_view style, std::string_view body);

}  // namespace svg

}  // namespace oxhost::map
