#pragma once
/// Coordinate systems as the host's texts define them. x is always easting or longitude, y northing or
/// latitude; degrees, or the unit of the projection. [ui]

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "geodesy/proj4_text.h"
#include "geodesy/proj_context.h"

namespace oxhost {

/// A text prepared for use. A text that PROJ refuses is kept too, with the reason.
struct crs {
    std::string text;
    proj4_text tokens;
    pj_ptr object;      ///< null when the text is empty or refused; two-dimensional, without `lon_wrap`
    std::string error;  ///< why `object` is null
    bool geographic = false;
    double metres_per_unit = 1;      ///< of x and y; of no meaning when geographic
    std::optional<double> lon_wrap;  ///< longitudes come out within 180 degrees of it (geographic only)

    bool valid() const { return object != nullptr; }
};

/// Prepared once per text and kept. Never null.
std::shared_ptr<const crs> crs_of(std::string_view text);

/// Do both texts define the same coordinate system? Order of keys, `no_defs`, `wktext`, `type`,
/// `lon_wrap`, `k` for `k_0`, the spelling of numbers and defaults written out make no difference; a
/// different datum shift, or one against none, does. `datum=WGS84` is `ellps=WGS84 towgs84=0,0,0`: both
/// give the same coordinates, always. Two empty texts are equal, an empty and a non-empty one are not.
/// Texts that PROJ refuses are equal when they are written alike after the same normalisation.
bool equal(std::string_view a, std::string_view b);

/// The ellipsoid of a CRS: semi-major axis in metres, inverse flattening (0 for a sphere).
struct ellipsoid {
    std::string name;
    double a = 0;
    double rf = 0;
};
ellipsoid ellipsoid_of(const PJ* crs_object);

/// The geographic system under a CRS: longitude, latitude in degrees on its own datum.
pj_ptr geographic_base(const PJ* crs_object);

/// Is there a way from this text to WGS 84: a shift, a grid or a datum PROJ knows? A shift of nothing but
/// zeros is one only on an ellipsoid like that of WGS 84.
bool has_datum(const crs& system);

}  // namespace oxhost
