#include "geodesy/gis_crs.h"

#include <cmath>
#include <numbers>

#include "base/numbers.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"

namespace oxhost {

namespace {

/// 1 cm of latitude, in degrees.
constexpr double same_place = 9e-8;

pj_ptr way_to_wgs84(const std::string& system) {
    const pj_ptr way(proj_create_crs_to_crs(proj_context(), system.c_str(), "EPSG:4326", nullptr));
    return pj_ptr(way ? proj_normalize_for_visualization(proj_context(), way.get()) : nullptr);
}

/// Corners and middle of the bounds come to the same longitudes and latitudes, or to none.
bool agree_within(const extent& bounds, const std::string& a, const std::string& b) {
    const pj_ptr way_a = way_to_wgs84(a), way_b = way_to_wgs84(b);
    if (!way_a || !way_b) return false;
    const point middle = bounds.middle();
    for (const auto& [x, y] : {middle, point{bounds.min_x, bounds.min_y}, point{bounds.min_x, bounds.max_y},
                               point{bounds.max_x, bounds.min_y}, point{bounds.max_x, bounds.max_y}}) {
        const PJ_XY place_a = proj_trans(way_a.get(), PJ_FWD, proj_coord(x, y, 0, 0)).xy;
        const PJ_XY place_b = proj_trans(way_b.get(), PJ_FWD, proj_coord(x, y, 0, 0)).xy;
        const bool found = std::isfinite(place_a.x);
        if (found != std::isfinite(place_b.x)) return false;
        if (!found) continue;
        const double east =
            std::remainder(place_a.x - place_b.x, 360) * std::cos(place_a.y * std::numbers::pi / 180);
        if (std::hypot(east, place_a.y - place_b.y) > same_place) return false;
    }
    return true;
}

std::string gdal_wkt(const PJ* system) {
    const char* const options[] = {"MULTILINE=NO", nullptr};
    const char* wkt = proj_as_wkt(proj_context(), system, PJ_WKT1_GDAL, options);
    return wkt ? wkt : "";
}

/// PROJ calls a system that comes from a proj4 text "unknown".
std::string named(std::string wkt, std::string name) {
    std::erase(name, '"');
    constexpr std::string_view unknown = "\"unknown\"";
    const auto bracket = wkt.find('[');
    if (bracket != wkt.npos && wkt.compare(bracket + 1, unknown.size(), unknown) == 0)
        wkt.replace(bracket + 2, unknown.size() - 2, name);
    return wkt;
}

}  // namespace

std::optional<gis_crs> crs_for_gis(const std::string& proj4, const extent& bounds) {
    const auto system = crs_of(proj4);
    if (!system->valid()) return {};
    if (const auto code = epsg_code(proj4); code && agree_within(bounds, system->text, *code)) {
        const pj_ptr known(proj_create(proj_context(), code->c_str()));
        const auto number = parse_whole_number(std::string_view(*code).substr(code->find(':') + 1));
        std::string wkt = known ? gdal_wkt(known.get()) : std::string();
        if (number && !wkt.empty())
            return gis_crs{proj_get_name(known.get()), std::move(wkt), static_cast<int>(*number)};
    }
    const std::string name = short_description(proj4, language::english);
    std::string wkt = named(gdal_wkt(system->object.get()), name);
    take_proj_complaint();
    if (wkt.empty()) return {};
    return gis_crs{name, std::move(wkt), {}};
}

}  // namespace oxhost
