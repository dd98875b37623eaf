#include "geodesy/pair_operations.h"

#include <cmath>
#include <limits>

#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/measure.h"
#include "geodesy/transformation.h"

namespace oxhost {
namespace {

/// In the order in which PROJ prefers them, those with grids that are not here among them.
pj_list_ptr operations_between(const coded_system& source, const coded_system& target, point degrees) {
    PJ_CONTEXT* const context = proj_context();
    const pj_ptr from(proj_create(context, source.code.c_str())),
        to(proj_create(context, target.code.c_str()));
    if (!from || !to) return nullptr;
    const pj_factory_ptr factory = operation_factory();
    proj_operation_factory_context_set_area_of_interest(context, factory.get(), degrees.x, degrees.y,
                                                        degrees.x, degrees.y);
    return pj_list_ptr(proj_create_operations(context, from.get(), to.get(), factory.get()));
}

/// The first grid file of an operation that is not here; empty when all are.
std::string missing_grid(const PJ* operation) {
    const int count = proj_coordoperation_get_grid_used_count(proj_context(), operation);
    for (int i = 0; i < count; ++i) {
        const char* name = nullptr;
        int available = 0;
        proj_coordoperation_get_grid_used(proj_context(), operation, i, &name, nullptr, nullptr, nullptr,
                                          nullptr, nullptr, &available);
        if (!available) return name && *name ? name : "?";
    }
    return {};
}

std::optional<double> distance(point a, point b, const std::string& proj4) {
    const auto place_a = to_wgs84({a}, proj4), place_b = to_wgs84({b}, proj4);
    if (!place_a || !place_b) return {};
    return ground_distance(place_a->front(), place_b->front());
}

}  // namespace

pair_operations operations_beside(const coded_system& source, const coded_system& target, point place,
                                  std::optional<double> accuracy) {
    pair_operations found;
    const auto degrees = to_wgs84({place}, source.proj4);
    const auto operations = degrees ? operations_between(source, target, degrees->front()) : nullptr;
    const int count = operations ? proj_list_get_count(operations.get()) : 0;
    double best = accuracy.value_or(std::numeric_limits<double>::infinity());
    pj_ptr own;  // what PROJ takes here
    for (int i = 0; i < count; ++i) {
        pj_ptr each(proj_list_get(proj_context(), operations.get(), i));
        const std::string grid = missing_grid(each.get());
        const double metres = proj_coordoperation_get_accuracy(proj_context(), each.get());
        if (grid.empty() && !own && proj_coordoperation_is_instantiable(proj_context(), each.get()))
            own = std::move(each);
        else if (!grid.empty() && metres >= 0 && metres < best) {
            best = metres;
            found.better = {proj_get_name(each.get()), metres, grid};
        }
    }
    const pj_ptr way(own ? proj_normalize_for_visualization(proj_context(), own.get()) : nullptr);
    take_proj_complaint();
    polyline by_texts{place};
    if (!way || transformation::between(source.proj4, target.proj4)->apply(by_texts)) return found;
    const PJ_XY at = proj_trans(way.get(), PJ_FWD, proj_coord(place.x, place.y, 0, 0)).xy;
    constexpr double noticeable = 0.01;
    const auto metres = distance({at.x, at.y}, by_texts.front(), target.proj4);
    if (metres && *metres > noticeable) found.unexpressed = {proj_get_name(own.get()), *metres};
    return found;
}

}  // namespace oxhost
