#include "geodesy/text_difference.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <proj_experimental.h>

#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/crs_parts.h"
#include "geodesy/datum_way.h"
#include "geodesy/measure.h"
#include "geodesy/place.h"

namespace oxhost {
namespace {

/// Keys that say something which positions in the area of use or PROJ's objects do not show.
constexpr std::array<std::string_view, 10> told_apart{
    "axis", "over", "geoc", "nadgrids", "approx", "algo", "vunits", "geoidgrids", "geoid_crs", "vto_meter"};

/// What a definition says, taken apart, and where it puts its coordinates.
struct meaning {
    pj_ptr system;
    proj4_text text;
    bool shifted = false;  ///< its datum is related to WGS 84
    pj_ptr to_wgs84;
};

meaning meaning_of_text(const std::string& text) {
    const auto known = crs_of(text);
    meaning read;
    if (!known->valid()) return read;
    read.system.reset(proj_clone(proj_context(), known->object.get()));
    read.text = known->tokens;
    read.shifted = has_datum(*known);
    read.to_wgs84 = easting_first_way(read.system.get(), wgs84_system());
    return read;
}

meaning meaning_of(std::string_view definition) {
    const std::string name(trimmed(definition));
    if (proj4_text(name).has("proj")) return meaning_of_text(import_crs(name).value_or(""));
    meaning read;
    read.system = horizontal_system(name);
    if (!read.system) return read;
    const char* exported = proj_as_proj_string(proj_context(), read.system.get(), PJ_PROJ_5, nullptr);
    read.text = proj4_text(exported ? exported : "");
    const bool named = read.text.has("datum") || proj_get_type(read.system.get()) == PJ_TYPE_BOUND_CRS;
    const pj_ptr published =
        named ? nullptr : published_operation(read.system.get(), area_of_use(read.system.get()));
    if (published) {
        read.to_wgs84.reset(proj_normalize_for_visualization(proj_context(), published.get()));
    } else {
        read.to_wgs84 = easting_first_way(read.system.get(), wgs84_system());
    }
    read.shifted = named || published;
    take_proj_complaint();
    return read;
}

bool close(double a, double b, double relative) { return std::abs(a - b) <= relative * std::abs(b); }

std::string lost_keys(const proj4_text& before, const proj4_text& after) {
    std::string keys;
    const auto wanted = before.canonical();
    const auto kept = after.canonical();
    for (const auto& [key, value] : before.tokens()) {
        const bool counts = std::ranges::find(told_apart, key) != told_apart.end() ||
                            (key == "lon_wrap" && wanted.contains("proj") && wanted.at("proj") == "longlat");
        if (!counts || (key == "axis" && value == "enu")) continue;
        const bool same = wanted.contains(key) ? kept.contains(key) && kept.at(key) == wanted.at(key)
                                               : after.number(key) == before.number(key) &&
                                                     after.value(key).has_value() == value.has_value();
        if (!same) append_item(keys, "+" + key + (value ? "=" + *value : ""), " ");
    }
    return keys;
}

std::vector<std::string> losses(const meaning& before, const meaning& after, language wanted) {
    std::vector<std::string> lost;
    const auto say = [&](std::string_view russian, std::string_view english, const std::string& name = {}) {
        std::string words(text_in(wanted, russian, english));
        if (!name.empty()) words += " (" + name + ')';
        lost.push_back(std::move(words));
    };
    const PJ* const a = before.system.get();
    const PJ* const b = after.system.get();
    if (is_geographic(a) != is_geographic(b)) say("вид системы координат", "kind of coordinate system");
    const axis_unit own = unit_of(a);
    if (is_geographic(a) == is_geographic(b) && !close(unit_of(b).factor, own.factor, 1e-10))
        say("единица измерения", "unit", own.name);
    const auto [name, longitude] = meridian_of(a);
    if (std::abs(longitude - meridian_of(b).longitude) > 1e-8)
        say("начальный меридиан", "prime meridian",
            name.empty() || name == "unknown" ? number_text(longitude) + "°" : name);
    const ellipsoid shape = ellipsoid_of(a);
    const ellipsoid other = ellipsoid_of(b);
    if (std::abs(shape.a - other.a) > 1e-3 || std::abs(shape.rf - other.rf) > 1e-6)
        say("эллипсоид", "ellipsoid", shape.name == "unknown" ? "" : shape.name);
    if (before.shifted && !after.shifted) say("переход к датуму WGS 84", "datum shift");
    const std::string keys = lost_keys(before.text, after.text);
    if (!keys.empty()) say("ключи", "keys", keys);
    return lost;
}

std::optional<point> moved(PJ* way, PJ_DIRECTION direction, point at) {
    proj_errno_reset(way);
    const PJ_COORD result = proj_trans(way, direction, proj_coord(at.x, at.y, 0, HUGE_VAL));
    const point place{result.xy.x, result.xy.y};
    return is_finite(place) ? std::optional(place) : std::nullopt;
}

/// At a grid of points of the area: the coordinates that `before` gives them, read by both.
std::optional<double> largest_distance(const meaning& before, const meaning& after) {
    if (!before.to_wgs84 || !after.to_wgs84) return {};
    std::optional<double> largest;
    for (const point& at : area_of_use(before.system.get()).grid(5)) {
        const auto native = moved(before.to_wgs84.get(), PJ_INV, at);
        const auto place = native ? moved(before.to_wgs84.get(), PJ_FWD, *native) : std::nullopt;
        // beyond the edge of a projection the way back leads elsewhere
        if (!place || ground_distance(*place, at) > 1000) continue;
        const auto other = moved(after.to_wgs84.get(), PJ_FWD, *native);
        if (other && std::abs(other->y) <= 90)
            largest = std::max(largest.value_or(0), ground_distance(*place, *other));
    }
    take_proj_complaint();
    if (largest) largest = std::round(*largest * 1e4) / 1e4;
    return largest;
}

std::string size_text(double metres) {
    const double step = metres < 1 ? 100 : metres < 100 ? 10 : 1;
    return number_text(std::round(metres * step) / step);
}

}  // namespace

bool text_difference::changed() const { return !lost.empty() || (metres && *metres > 0.01); }

text_difference difference_of(std::string_view definition, std::string_view proj4, language wanted) {
    text_difference difference;
    const meaning before = meaning_of(definition);
    if (!before.system) return difference;
    const meaning after = meaning_of_text(std::string(proj4));
    if (!after.system) {
        difference.lost.emplace_back(text_in(wanted, "проекция", "projection"));
        return difference;
    }
    difference.lost = losses(before, after, wanted);
    difference.metres = largest_distance(before, after);
    // PROJ has a way by grids alone
    if (difference.changed() && difference.lost.empty() && !after.shifted)
        difference.lost.emplace_back(text_in(wanted, "переход к датуму WGS 84", "datum shift"));
    return difference;
}

std::string difference_line(const text_difference& difference, language wanted) {
    if (!difference.changed()) return {};
    const auto say = [&](std::string_view russian, std::string_view english) {
        return std::string(text_in(wanted, russian, english));
    };
    std::string line = say("система координат изменилась: ", "the coordinate system has changed: ");
    std::string what;
    for (const auto& each : difference.lost) append_item(what, each);
    if (!what.empty()) line += say("утрачено: ", "lost: ") + what + "; ";
    if (!difference.metres) return line + say("величина сдвига неизвестна", "how far off is not known");
    if (*difference.metres <= 0.01)
        return line + say("координаты в области применения те же", "positions in the area of use stay");
    return line +
           say("положение в области применения сдвинуто до ",
               "positions in the area of use are off by up to ") +
           size_text(*difference.metres) + say(" м", " m");
}

}  // namespace oxhost
