#pragma once
/// What PROJ's coordinate systems are made of. [ui]

#include <optional>
#include <string>

#include "geodesy/crs.h"
#include "geodesy/proj_context.h"

namespace oxhost {

/// The system itself, without the shift it is bound to.
pj_ptr unbound(const PJ* system);

struct axis_unit {
    std::string name;
    double factor = 1;  ///< metres, or radians
};
/// Of both axes.
axis_unit unit_of(const PJ* system);

struct prime_meridian {
    std::string name;
    double longitude = 0;  ///< degrees east of Greenwich
};
prime_meridian meridian_of(const PJ* system);

bool is_geographic(const PJ* system);

}  // namespace oxhost
