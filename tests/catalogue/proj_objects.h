#pragma once
/// PROJ objects for the comparison of the catalogue with PROJ's own database.

#include <proj.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>

namespace catalogue_test {

struct proj_destroyer {
    void operator()(PJ* object) const { proj_destroy(object); }
};
using proj_object = std::unique_ptr<PJ, proj_destroyer>;

/// Digits of "EPSG:28407", of "EPSG method 9807" with that prefix; nothing for another source.
inline std::optional<std::string> code_after(const std::string& prefix, const std::string& source) {
    if (!source.starts_with(prefix)) return std::nullopt;
    return source.substr(prefix.size());
}

inline proj_object epsg(const std::string& code, PJ_CATEGORY category) {
    return proj_object(proj_create_from_database(PJ_DEFAULT_CTX, "EPSG", code.c_str(), category, 0, nullptr));
}

inline proj_object crs_of_text(const std::string& proj4) {
    return proj_object(proj_create(PJ_DEFAULT_CTX, (proj4 + " +type=crs").c_str()));
}

/// From degrees on the CRS's own datum, longitude first, to easting and northing.
inline proj_object way_into(const PJ* crs) {
    const proj_object base(proj_crs_get_geodetic_crs(PJ_DEFAULT_CTX, crs));
    const proj_object plain(
        proj_create_crs_to_crs_from_pj(PJ_DEFAULT_CTX, base.get(), crs, nullptr, nullptr));
    return proj_object(plain ? proj_normalize_for_visualization(PJ_DEFAULT_CTX, plain.get()) : nullptr);
}

/// Easting and northing of a place, given in degrees on the CRS's own datum.
inline std::optional<PJ_XY> project(const PJ* crs, double longitude, double latitude) {
    const proj_object way = way_into(crs);
    if (!way) return std::nullopt;
    const PJ_COORD out = proj_trans(way.get(), PJ_FWD, proj_coord(longitude, latitude, 0, 0));
    if (!std::isfinite(out.xy.x)) return std::nullopt;
    return out.xy;
}

}  // namespace catalogue_test
