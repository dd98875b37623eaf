#include "geodesy/datum_way.h"

#include <cmath>
#include <limits>

#include "geodesy/place.h"

namespace oxhost {
namespace {

PJ* wgs84() {
    static const pj_ptr object(proj_create(proj_context(), "EPSG:4326"));
    return object.get();
}

pj_ptr easting_first(const PJ* way) {
    return pj_ptr(way ? proj_normalize_for_visualization(proj_context(), way) : nullptr);
}

}  // namespace

pj_ptr bound_way_to_wgs84(const PJ* system) {
    if (!wgs84()) return nullptr;
    const pj_ptr way(proj_create_crs_to_crs_from_pj(proj_context(), system, wgs84(), nullptr, nullptr));
    return easting_first(way.get());
}

pj_ptr published_way_to_wgs84(const PJ* system) {
    PJ_CONTEXT* const context = proj_context();
    if (!wgs84()) return nullptr;
    const point place = area_of_use(system).middle();
    const pj_factory_ptr factory(proj_create_operation_factory_context(context, nullptr));
    proj_operation_factory_context_set_spatial_criterion(context, factory.get(),
                                                         PROJ_SPATIAL_CRITERION_PARTIAL_INTERSECTION);
    proj_operation_factory_context_set_grid_availability_use(context, factory.get(),
                                                             PROJ_GRID_AVAILABILITY_IGNORED);
    proj_operation_factory_context_set_allow_ballpark_transformations(context, factory.get(), 0);
    const pj_list_ptr operations(proj_create_operations(context, system, wgs84(), factory.get()));
    const int count = operations ? proj_list_get_count(operations.get()) : 0;
    pj_ptr best, first;
    double best_accuracy = std::numeric_limits<double>::infinity();
    for (int i = 0; i < count; ++i) {
        pj_ptr each(proj_list_get(context, operations.get(), i));
        if (proj_coordoperation_get_grid_used_count(context, each.get()) > 0) continue;
        const auto area = area_of(each.get());
        if (!area || !area->covers(place)) {
            if (!first) first = std::move(each);
            continue;
        }
        const double given = proj_coordoperation_get_accuracy(context, each.get());
        const double accuracy = given < 0 ? std::numeric_limits<double>::max() : given;
        if (accuracy >= best_accuracy) continue;
        best_accuracy = accuracy;
        best = std::move(each);
    }
    return easting_first(best ? best.get() : first.get());
}

}  // namespace oxhost
