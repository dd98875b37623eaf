#include "geodesy/place.h"

#include <proj_experimental.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "geodesy/crs_parts.h"

namespace oxhost {
namespace {

constexpr double far_from_meridian = 6;  // degrees; no grid of a place is wider

/// The EPSG system of a datum with this code.
pj_ptr system_on_datum(const PJ* datum) {
    const char* authority = proj_get_id_auth_name(datum, 0);
    const char* code = proj_get_id_code(datum, 0);
    if (!authority || !code) return nullptr;
    const pj_list_ptr found(
        proj_query_geodetic_crs_from_datum(proj_context(), "EPSG", authority, code, "geographic 2D"));
    return pj_ptr(found && proj_list_get_count(found.get()) > 0
                      ? proj_list_get(proj_context(), found.get(), 0)
                      : nullptr);
}

/// Datums are called "D_Pulkovo_1942", "Pulkovo_1942", "Pulkovo 1942 (SK42)".
std::string plain_name(std::string name) {
    for (const std::string_view prefix : {"D_", "GCS_"})
        if (name.starts_with(prefix)) name.erase(0, prefix.size());
    std::ranges::replace(name, '_', ' ');
    return name;
}

/// The EPSG system of the datum with this name, if it stands on the same ellipsoid.
pj_ptr system_on_datum_named(const std::string& name, const ellipsoid& shape) {
    constexpr std::array types{PJ_TYPE_GEODETIC_REFERENCE_FRAME, PJ_TYPE_GEOGRAPHIC_2D_CRS};
    for (const PJ_TYPE type : types) {
        const pj_list_ptr found(
            proj_create_from_name(proj_context(), "EPSG", name.c_str(), &type, 1, 0, 20, nullptr));
        for (int i = 0; found && i < proj_list_get_count(found.get()); ++i) {
            pj_ptr each(proj_list_get(proj_context(), found.get(), i));
            if (type != PJ_TYPE_GEOGRAPHIC_2D_CRS) each = system_on_datum(each.get());
            if (!each) continue;
            const ellipsoid own = ellipsoid_of(each.get());
            if (std::abs(own.a - shape.a) < 0.01 && std::abs(own.rf - shape.rf) < 1e-4) return each;
        }
    }
    return nullptr;
}

/// The longitude and latitude, on the system's own datum, of its coordinates.
std::optional<point> on_own_base(const PJ* system, point at) {
    const pj_ptr base = geographic_base(system);
    if (!base) return {};
    const pj_ptr way(proj_create_crs_to_crs_from_pj(proj_context(), system, base.get(), nullptr, nullptr));
    const pj_ptr usual(way ? proj_normalize_for_visualization(proj_context(), way.get()) : nullptr);
    if (!usual) return {};
    const PJ_COORD moved = proj_trans(usual.get(), PJ_FWD, proj_coord(at.x, at.y, 0, 0));
    const point place{moved.xy.x, moved.xy.y};
    return is_finite(place) ? std::optional(place) : std::nullopt;
}

geographic_area around_origin(const PJ* system, const std::optional<geographic_area>& country) {
    const char* exported = proj_as_proj_string(proj_context(), system, PJ_PROJ_5, nullptr);
    const proj4_text text(exported ? exported : "");
    const auto number = [&](const char* key) { return text.number(key).value_or(0); };
    point origin{number(text.has("lonc") ? "lonc" : "lon_0"), number("lat_0")};
    if (text.has("zone")) origin.x = 6 * number("zone") - 183;
    const auto sensible = [&](point place) {
        if (country) return country->covers(place);
        return std::abs(place.y) > 1 && std::abs(place.y) < 80;
    };
    const double unit = text.number("to_meter").value_or(1);
    for (const point native : {point{0, 0}, point{number("x_0") / unit, 0}}) {
        const auto place = on_own_base(system, native);
        if (place && sensible(*place) &&
            std::abs(std::remainder(place->x - origin.x, 360)) < far_from_meridian)
            return around(*place);
    }
    if (sensible(origin)) return around(origin);
    // A projection that counts from the equator is used where its country lies.
    origin.y = text.has("lat_1") ? number("lat_1") : 45;
    if (country) {
        origin.y = country->middle().y;
        if (!country->covers(origin)) return *country;
    }
    return around(origin);
}

}  // namespace

bool geographic_area::covers(point place) const {
    if (!(place.y >= south && place.y <= north)) return false;
    const double longitude = std::remainder(place.x, 360);
    return west <= east ? longitude >= west && longitude <= east : longitude >= west || longitude <= east;
}

point geographic_area::middle() const {
    return {(west + east + (east < west ? 360 : 0)) / 2, (south + north) / 2};
}

polyline geographic_area::grid(int side) const {
    const double width = east - west + (east < west ? 360 : 0);
    polyline points;
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column)
            points.push_back(
                {west + width * column / (side - 1), south + (north - south) * row / (side - 1)});
    return points;
}

geographic_area around(point place) { return {place.x - 1, place.y - 1, place.x + 1, place.y + 1}; }

std::optional<geographic_area> area_of(const PJ* object) {
    geographic_area area;
    if (!object || !proj_get_area_of_use(proj_context(), object, &area.west, &area.south, &area.east,
                                         &area.north, nullptr))
        return {};
    if (area.west < -1000) return {};  // PROJ's mark for an unknown area
    return area;
}

pj_ptr recognised(const PJ* system) {
    int* confidence = nullptr;
    const pj_list_ptr found(proj_identify(proj_context(), system, "EPSG", nullptr, &confidence));
    const bool sure = found && proj_list_get_count(found.get()) > 0 && confidence[0] >= 90;
    proj_int_list_destroy(confidence);
    return pj_ptr(sure ? proj_list_get(proj_context(), found.get(), 0) : nullptr);
}

pj_ptr recognised_base(const PJ* system) {
    pj_ptr base = geographic_base(system);
    if (!base) return nullptr;
    if (area_of(base.get())) return base;
    if (pj_ptr named = recognised(base.get())) return named;
    const pj_ptr datum(proj_crs_get_datum_forced(proj_context(), base.get()));
    if (!datum) return nullptr;
    if (pj_ptr known = system_on_datum(datum.get())) return known;
    const ellipsoid shape = ellipsoid_of(base.get());
    for (const char* name : {proj_get_name(datum.get()), proj_get_name(base.get())})
        if (pj_ptr known = name ? system_on_datum_named(plain_name(name), shape) : nullptr) return known;
    return nullptr;
}

geographic_area area_of_use(const PJ* crs_object) {
    const pj_ptr system = unbound(crs_object);
    if (const auto own = area_of(system.get())) return *own;
    if (const pj_ptr named = recognised(system.get()))
        if (const auto area = area_of(named.get())) return *area;
    const pj_ptr base = recognised_base(system.get());
    auto country = area_of(base.get());
    if (proj_get_type(system.get()) != PJ_TYPE_PROJECTED_CRS)
        return country ? *country : geographic_area{-180, -80, 180, 80};
    return around_origin(system.get(), country);
}

}  // namespace oxhost
