#include "geodesy/epsg_systems.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "geodesy/proj4_text.h"

namespace oxhost {
namespace {

/// The projection alone, on its ellipsoid.
proj4_text without_datum(proj4_text text) {
    const auto canonical = text.canonical();
    const auto shape = canonical.find("ellps");
    if (text.has("datum") && shape != canonical.end()) text.set("ellps", shape->second);
    for (const char* key : {"datum", "towgs84", "nadgrids", "type", "no_defs"}) text.remove(key);
    return text;
}

std::vector<epsg_system> read_systems() {
    std::vector<epsg_system> systems;
    constexpr std::array types{PJ_TYPE_PROJECTED_CRS, PJ_TYPE_GEOGRAPHIC_2D_CRS};
    PJ_CONTEXT* const context = proj_context();
    PROJ_CRS_LIST_PARAMETERS* const wanted = proj_get_crs_list_parameters_create();
    wanted->types = types.data();
    wanted->typesCount = types.size();
    wanted->allow_deprecated = 1;
    int count = 0;
    PROJ_CRS_INFO** const list = proj_get_crs_info_list_from_database(context, "EPSG", wanted, &count);
    proj_get_crs_list_parameters_destroy(wanted);
    for (int i = 0; i < count; ++i) {
        if (!list[i]->bbox_valid) continue;
        const pj_ptr object(
            proj_create_from_database(context, "EPSG", list[i]->code, PJ_CATEGORY_CRS, 0, nullptr));
        if (object && proj_as_proj_string(context, object.get(), PJ_PROJ_5, nullptr))
            systems.emplace_back(*list[i], object.get());
    }
    proj_crs_info_list_destroy(list);
    take_proj_complaint();
    return systems;
}

}  // namespace

epsg_system::epsg_system(const PROJ_CRS_INFO& info, const PJ* object)
    : code(std::string("EPSG:") + info.code),
      name(info.name),
      words(info.area_name ? info.area_name : ""),
      method(info.projection_method_name ? info.projection_method_name : ""),
      area{info.west_lon_degree, info.south_lat_degree, info.east_lon_degree, info.north_lat_degree},
      geographic(info.type == PJ_TYPE_GEOGRAPHIC_2D_CRS),
      deprecated(info.deprecated != 0) {
    const proj4_text text =
        without_datum(proj4_text(proj_as_proj_string(proj_context(), object, PJ_PROJ_5, nullptr)));
    ellipsoid = text.value("ellps").value_or("");
    definition_ = text.str();
}

std::optional<point> epsg_system::place(point coordinates) const {
    if (geographic) {
        const bool degrees = std::abs(coordinates.x) <= 360 && std::abs(coordinates.y) <= 90;
        return degrees ? std::optional(coordinates) : std::nullopt;
    }
    if (!projection_) projection_.reset(proj_create(proj_context(), definition_.c_str()));
    if (!projection_) return {};
    const PJ_COORD given = proj_coord(coordinates.x, coordinates.y, 0, 0);
    const PJ_COORD found = proj_trans(projection_.get(), PJ_INV, given);
    const point angles{proj_todeg(found.lp.lam), proj_todeg(found.lp.phi)};
    if (!is_finite(angles) || std::abs(angles.y) > 90) return {};
    // far outside a projection's domain its inverse answers something that does not lead back
    const PJ_COORD back = proj_trans(projection_.get(), PJ_FWD, found);
    const double error = std::hypot(back.xy.x - coordinates.x, back.xy.y - coordinates.y);
    return error < 1 ? std::optional(angles) : std::nullopt;
}

double epsg_system::distortion(point angles) const {
    if (geographic || !projection_) return 0;
    const PJ_FACTORS scales =
        proj_factors(projection_.get(), proj_coord(proj_torad(angles.x), proj_torad(angles.y), 0, 0));
    proj_errno_reset(projection_.get());
    const double error = std::max(std::abs(scales.meridional_scale - 1), std::abs(scales.parallel_scale - 1));
    return std::isfinite(error) ? error : 0;
}

std::span<const epsg_system> epsg_systems() {
    // never destroyed: its projections refer to the context
    static const auto* const systems = new std::vector<epsg_system>(read_systems());
    return *systems;
}

}  // namespace oxhost
