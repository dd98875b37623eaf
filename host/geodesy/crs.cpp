#include "geodesy/crs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include <proj_experimental.h>

#include "base/language.h"
#include "base/memo.h"
#include "base/numbers.h"

namespace oxhost {
namespace {

/// Keys whose meaning PROJ's comparison of coordinate systems does not look at.
constexpr std::array<const char*, 7> uncompared{"axis",   "over", "geoc", "nadgrids",
                                                "approx", "algo", "datum"};

/// Keys that together give the ellipsoid.
constexpr std::array<const char*, 8> shape_keys{"ellps", "a", "b", "R", "rf", "f", "es", "e"};

/// Metres. The ellipsoids of systems that are taken as equal to WGS 84 differ by up to a metre.
constexpr double wgs84_axis = 6378137;

using canonical_keys = std::map<std::string, std::string>;

/// What goes to PROJ: one spelling of each datum, so that a named datum means its shift and not
/// whatever operation or grid the database prefers; nothing about wrapping and heights.
std::string definition(const proj4_text& tokens, const canonical_keys& canonical) {
    proj4_text text = tokens;
    for (const char* key : {"lon_wrap", "type", "geoidgrids", "geoid_crs", "vunits", "vto_meter"})
        text.remove(key);
    const auto at = [&](const char* key) {
        const auto found = canonical.find(key);
        return found == canonical.end() ? std::string() : found->second;
    };
    const std::string ellps = at("ellps");
    const std::string shift = at("towgs84");
    const bool own_axes = std::any_of(shape_keys.begin() + 1, shape_keys.end(),
                                      [&](const char* key) { return canonical.contains(key); });
    if (ellps == "WGS84" && shift == "0,0,0,0,0,0,0" && !own_axes && !text.has("nadgrids")) {
        for (const char* key : {"ellps", "towgs84", "datum"}) text.remove(key);
        text.set("datum", "WGS84", "no_defs");
    } else if (text.has("datum") && !canonical.contains("datum")) {
        text.remove("datum");
        text.set("ellps", ellps, "no_defs");
        if (!shift.empty()) text.set("towgs84", shift, "no_defs");
    }
    return text.str() + " +type=crs";
}

std::string say(std::string_view russian, std::string_view english) { return words(russian, english); }

std::string refusal() {
    const std::string reason = take_proj_complaint();
    return reason.empty()
               ? say("не система координат, известная PROJ", "not a coordinate system that PROJ knows")
               : reason;
}

void read_axes(crs& system) {
    const pj_ptr unbound(proj_get_type(system.object.get()) == PJ_TYPE_BOUND_CRS
                             ? proj_get_source_crs(proj_context(), system.object.get())
                             : proj_clone(proj_context(), system.object.get()));
    const PJ_TYPE type = proj_get_type(unbound.get());
    system.geographic = type == PJ_TYPE_GEOGRAPHIC_2D_CRS;
    if (!system.geographic && type != PJ_TYPE_PROJECTED_CRS) {
        system.object.reset();
        system.error = say("не картографическая проекция и не система долгот и широт",
                           "not a map projection or a longitude/latitude system");
        return;
    }
    const pj_ptr axes(proj_crs_get_coordinate_system(proj_context(), unbound.get()));
    double factor = 1;
    if (axes && !system.geographic &&
        proj_cs_get_axis_info(proj_context(), axes.get(), 0, nullptr, nullptr, nullptr, &factor, nullptr,
                              nullptr, nullptr)) {
        system.metres_per_unit = factor;
    }
    if (system.geographic) system.lon_wrap = system.tokens.number("lon_wrap");
}

std::shared_ptr<crs> prepare(std::string_view text) {
    auto system = std::make_shared<crs>();
    system->text = text;
    system->tokens = proj4_text(text);
    const auto& tokens = system->tokens;
    if (tokens.empty()) {
        system->error = say("нет проекции", "no projection");
        return system;
    }
    if (!tokens.has("proj") && !tokens.has("init")) {
        system->error = say("в тексте нет +proj=", "no +proj= in the text");
        return system;
    }
    take_proj_complaint();
    const std::string prepared = definition(tokens, tokens.canonical());
    system->object.reset(proj_create(proj_context(), prepared.c_str()));
    if (!system->object) {
        system->error = refusal();
    } else if (!proj_is_crs(system->object.get())) {
        system->object.reset();
        system->error = say("операция над координатами, а не система координат",
                            "a coordinate operation, not a coordinate system");
    } else {
        read_axes(*system);
    }
    return system;
}

/// With the ellipsoid by its measures, however the text gave it.
canonical_keys comparable_keys(const crs& system) {
    canonical_keys keys = system.tokens.canonical();
    if (!system.valid()) return keys;
    for (const char* key : shape_keys) keys.erase(key);
    const ellipsoid shape = ellipsoid_of(system.object.get());
    keys["shape"] =
        number_text(std::round(shape.a * 1e6) / 1e6) + ' ' + number_text(std::round(shape.rf * 1e9) / 1e9);
    return keys;
}

bool compare(std::string_view a, std::string_view b) {
    const auto first = crs_of(a);
    const auto second = crs_of(b);
    if (first->tokens.empty() || second->tokens.empty())
        return first->tokens.empty() == second->tokens.empty();
    const auto keys_a = comparable_keys(*first);
    const auto keys_b = comparable_keys(*second);
    if (keys_a == keys_b) return true;
    if (!first->valid() || !second->valid()) return false;
    const auto differs = [&](const char* key) {
        const auto in_a = keys_a.find(key);
        const auto in_b = keys_b.find(key);
        if (in_a == keys_a.end() || in_b == keys_b.end())
            return (in_a == keys_a.end()) != (in_b == keys_b.end());
        return in_a->second != in_b->second;
    };
    if (differs("towgs84") || std::ranges::any_of(uncompared, differs)) return false;
    return proj_is_equivalent_to(first->object.get(), second->object.get(), PJ_COMP_EQUIVALENT) != 0;
}

}  // namespace

std::shared_ptr<const crs> crs_of(std::string_view text) {
    static memo<std::shared_ptr<const crs>> kept(4096);
    return kept.of(text, [&] { return prepare(text); });
}

bool equal(std::string_view a, std::string_view b) {
    if (a == b) return true;
    static memo<bool> judged(32768);  // a large project, a projection per line; tens of MB
    return judged.of(a, b, [&] { return compare(a, b); });
}

ellipsoid ellipsoid_of(const PJ* crs_object) {
    ellipsoid found;
    const pj_ptr object(proj_get_ellipsoid(proj_context(), crs_object));
    if (!object) return found;
    found.name = proj_get_name(object.get());
    double b = 0;
    int computed = 0;
    proj_ellipsoid_get_parameters(proj_context(), object.get(), &found.a, &b, &computed, &found.rf);
    return found;
}

pj_ptr geographic_base(const PJ* crs_object) {
    if (proj_get_type(crs_object) == PJ_TYPE_BOUND_CRS) {
        const pj_ptr source(proj_get_source_crs(proj_context(), crs_object));
        return geographic_base(source.get());
    }
    pj_ptr base(proj_crs_get_geodetic_crs(proj_context(), crs_object));
    if (base) base.reset(proj_crs_demote_to_2D(proj_context(), nullptr, base.get()));
    return base;
}

bool has_datum(const crs& system) {
    const auto given = [&](const char* key) { return system.tokens.has(key); };
    if (given("datum") || given("nadgrids") || given("init")) return true;
    const auto shift = system.tokens.shift();
    if (!shift || !std::ranges::all_of(*shift, [](double value) { return value == 0; }))
        return given("towgs84");
    return system.valid() && std::abs(ellipsoid_of(system.object.get()).a - wgs84_axis) < 1.5;
}

}  // namespace oxhost
