#include "geodesy/crs_parts.h"

#include <cmath>

namespace oxhost {

pj_ptr unbound(const PJ* system) {
    return pj_ptr(proj_get_type(system) == PJ_TYPE_BOUND_CRS ? proj_get_source_crs(proj_context(), system)
                                                             : proj_clone(proj_context(), system));
}

axis_unit unit_of(const PJ* system) {
    axis_unit found;
    const pj_ptr axes(proj_crs_get_coordinate_system(proj_context(), unbound(system).get()));
    const char* name = nullptr;
    if (axes && proj_cs_get_axis_info(proj_context(), axes.get(), 0, nullptr, nullptr, nullptr, &found.factor,
                                      &name, nullptr, nullptr))
        found.name = name ? name : "";
    return found;
}

prime_meridian meridian_of(const PJ* system) {
    const pj_ptr meridian(proj_get_prime_meridian(proj_context(), unbound(system).get()));
    double longitude = 0, radians = 0;
    if (!meridian ||
        !proj_prime_meridian_get_parameters(proj_context(), meridian.get(), &longitude, &radians, nullptr))
        return {};
    return {proj_get_name(meridian.get()), longitude * radians * 180 / M_PI};
}

bool is_geographic(const PJ* system) {
    const PJ_TYPE type = proj_get_type(unbound(system).get());
    return type == PJ_TYPE_GEOGRAPHIC_2D_CRS || type == PJ_TYPE_GEOGRAPHIC_3D_CRS;
}

}  // namespace oxhost
