#include "map/frame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/numbers.h"

namespace oxhost::map {

namespace {

constexpr double margin = 0.12;               // of the content, on each side
constexpr double smallest_side = 0.02;        // degrees
constexpr double metres_per_degree = 111195;  // of latitude, on the mean sphere

double cosine(double degrees) { return std::cos(std::min(std::abs(degrees), 85.0) * std::numbers::pi / 180); }

/// The largest of 1, 2, 5, 10, ... times a power of ten that is not above `limit`.
double round_below(double limit) {
    const double power = std::pow(10, std::floor(std::log10(limit)));
    for (const double digit : {5.0, 2.0})
        if (digit * power <= limit) return digit * power;
    return power;
}

/// The smallest of them that is not below it.
double round_above(double limit) {
    const double below = round_below(limit);
    for (const double factor : {1.0, 2.0, 2.5})
        if (round_below(below * factor * 1.01) >= limit) return round_below(below * factor * 1.01);
    return round_below(below * 5.05);
}

std::string degrees_text(double degrees, char negative, char positive) {
    const double turned = std::remainder(degrees, 360);
    const double rounded = std::round(std::abs(turned) * 1e6) / 1e6;
    std::string text = number_text(rounded) + "°";
    if (rounded != 0 && rounded != 180) text += turned < 0 ? negative : positive;
    return text;
}

std::string degrees_label(double x, double y, const char* anchor, const std::string& text) {
    return svg::text_element("degrees", x, y, text, anchor);
}

}  // namespace

frame::frame(const rectangle& place, const geographic_extent& content) : place_(place) {
    const point middle = content.middle();
    const double shrink = cosine(middle.y);
    double width = std::max(content.width(), smallest_side) * (1 + 2 * margin);
    double height = std::max(content.height(), smallest_side) * (1 + 2 * margin);
    width = std::max(width, height * place.width / place.height / shrink);
    height = std::max(height, width * shrink * place.height / place.width);
    shown_ = {middle.x - width / 2, middle.y - height / 2, middle.x + width / 2, middle.y + height / 2};
}

point frame::to_picture(const point& degrees) const {
    return {place_.x + (degrees.x - shown_.min_x) / shown_.width() * place_.width,
            place_.y + (shown_.max_y - degrees.y) * pixels_per_degree_north()};
}

rectangle frame::to_picture(const geographic_extent& degrees) const {
    const point corner = to_picture(point{degrees.min_x, degrees.max_y});
    const point opposite = to_picture(point{degrees.max_x, degrees.min_y});
    return {corner.x, corner.y, opposite.x - corner.x, opposite.y - corner.y};
}

std::string frame::graticule() const {
    constexpr double room_x = 72, room_y = 60;  // of a label, at least
    const double bottom = place_.y + place_.height;
    std::string drawn, path;
    const double step_x = round_above(room_x / place_.width * shown_.width());
    for (double n = std::ceil(shown_.min_x / step_x); n * step_x < shown_.max_x; ++n) {
        const double x = to_picture(point{n * step_x, 0}).x;
        path += 'M' + svg::pair(x, place_.y) + 'V' + svg::number(bottom);
        drawn += degrees_label(x, bottom + 13, "middle", degrees_text(n * step_x, 'W', 'E'));
    }
    const double step_y = round_above(room_y / pixels_per_degree_north());
    for (double n = std::ceil(shown_.min_y / step_y); n * step_y < shown_.max_y; ++n) {
        if (std::abs(n * step_y) > 90) continue;
        const double y = to_picture(point{0, n * step_y}).y;
        path += 'M' + svg::pair(place_.x, y) + 'H' + svg::number(place_.x + place_.width);
        drawn += degrees_label(place_.x - 4, y + 4, "end", degrees_text(n * step_y, 'S', 'N'));
    }
    return svg::path_element("graticule", path) + svg::rectangle_element("border", place_) + drawn;
}

double frame::metres_per_pixel() const { return metres_per_degree / pixels_per_degree_north(); }

double frame::scale_bar_metres() const { return round_below(place_.width / 4 * metres_per_pixel()); }

rectangle frame::scale_bar_place() const {
    constexpr double room = 12, height = 24;
    const double length = scale_bar_metres() / metres_per_pixel();
    return {place_.x + place_.width - length - room, place_.y + place_.height - 10 - height, length, height};
}

std::string frame::scale_bar(language wanted) const {
    const double metres = scale_bar_metres();
    const auto [x, top, length, height] = scale_bar_place();
    const double y = top + height;
    const std::string caption = metres < 1000
                                    ? number_text(metres) + std::string(text_in(wanted, " м", " m"))
                                    : number_text(metres / 1000) + std::string(text_in(wanted, " км", " km"));
    return svg::path_element("scale", 'M' + svg::pair(x, y - 4) + "v4h" + svg::number(length) + "v-4") +
           degrees_label(x + length / 2, y - 4, "middle", caption);
}

}  // namespace oxhost::map
