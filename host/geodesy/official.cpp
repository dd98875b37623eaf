#include "geodesy/official.h"

#include <proj.h>

#include "geodesy/proj_context.h"

namespace oxhost {
namespace {

struct kind_words {
    std::string_view russian, english;
    bool maps;
};

kind_words kind_of(PJ_TYPE type) {
    switch (type) {
        case PJ_TYPE_PROJECTED_CRS:
            return {"система в проекции", "projected", true};
        case PJ_TYPE_GEOGRAPHIC_2D_CRS:
        case PJ_TYPE_GEOGRAPHIC_3D_CRS:
            return {"географическая: долгота и широта", "geographic: longitude and latitude", true};
        case PJ_TYPE_COMPOUND_CRS:
            return {"составная: плановая и высотная", "compound: horizontal and vertical", true};
        case PJ_TYPE_BOUND_CRS:
            return {"со своим переходом датума", "with a datum shift of its own", true};
        case PJ_TYPE_GEOCENTRIC_CRS:
            return {"геоцентрическая (X, Y, Z): линии разреза в ней быть не может",
                    "geocentric (X, Y, Z): no section line can be in it", false};
        case PJ_TYPE_VERTICAL_CRS:
            return {"высотная: линии разреза в ней быть не может", "vertical: no section line can be in it",
                    false};
        default:
            return {"не картографическая: линии разреза в ней быть не может",
                    "none of maps: no section line can be in it", false};
    }
}

}  // namespace

std::optional<official_system> official(const std::string& identifier, language wanted) {
    const pj_ptr object(proj_create(proj_context(), identifier.c_str()));
    take_proj_complaint();
    if (!object || !proj_is_crs(object.get())) return {};
    const PJ_TYPE type = proj_get_type(object.get());
    const auto [russian, english, maps] = kind_of(type);
    official_system system;
    system.name = proj_get_name(object.get());
    system.kind = text_in(wanted, russian, english);
    system.maps = maps;
    system.deprecated = proj_is_deprecated(object.get()) != 0;
    system.bounds = area_of(object.get());
    double unused = 0;
    const char* words = nullptr;
    if (proj_get_area_of_use(proj_context(), object.get(), &unused, &unused, &unused, &unused, &words) &&
        words)
        system.area = words;
    if (type == PJ_TYPE_GEOGRAPHIC_2D_CRS || type == PJ_TYPE_GEOGRAPHIC_3D_CRS)
        system.shifts = published_shifts(object.get());
    return system;
}

}  // namespace oxhost
