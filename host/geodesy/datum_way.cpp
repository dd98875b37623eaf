#include "geodesy/datum_way.h"

#include <array>
#include <charconv>
#include <limits>

#include "geodesy/crs_parts.h"
#include "geodesy/shift_fit.h"

namespace oxhost {
namespace {

/// The number that a composed text of a plug-in gives back: twelve significant digits. No publication has
/// more; PROJ's conversion of units leaves 0.7899999999999999.
double as_written(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::general, 12).ptr;
    std::from_chars(digits.begin(), end, value);
    return value;
}

std::optional<towgs84> own_parameters(const PJ* operation) {
    towgs84 values(7);
    if (!proj_coordoperation_get_towgs84_values(proj_context(), operation, values.data(), 7, 0)) return {};
    for (double& value : values) value = as_written(value);
    return values;
}

bool turns_longitudes_only(const PJ* operation) {
    const char* code = nullptr;
    return proj_coordoperation_get_method_info(proj_context(), operation, nullptr, nullptr, &code) && code &&
           std::string_view(code) == "9601";  // EPSG: longitude rotation, between two prime meridians
}

/// Of the one step that does more than change the meridian.
std::optional<towgs84> parameters_of_steps(const PJ* operation) {
    std::optional<towgs84> found;
    const int count = proj_concatoperation_get_step_count(proj_context(), operation);
    for (int i = 0; i < count; ++i) {
        const pj_ptr step(proj_concatoperation_get_step(proj_context(), operation, i));
        if (!step || turns_longitudes_only(step.get())) continue;
        if (found) return {};
        found = own_parameters(step.get());
        if (!found) return {};
    }
    return found;
}

class operation_search {
public:
    explicit operation_search(const geographic_area& area) : place_(area.middle()) {
        PJ_CONTEXT* const context = proj_context();
        proj_operation_factory_context_set_area_of_interest(context, factory_.get(), area.west, area.south,
                                                            area.east, area.north);
        proj_operation_factory_context_set_allow_ballpark_transformations(context, factory_.get(), 0);
    }

    /// The best that covers the place.
    pj_ptr find(const PJ* system, PROJ_INTERMEDIATE_CRS_USE third_systems) {
        PJ_CONTEXT* const context = proj_context();
        proj_operation_factory_context_set_allow_use_intermediate_crs(context, factory_.get(), third_systems);
        const pj_list_ptr found(proj_create_operations(context, system, wgs84_system(), factory_.get()));
        const int count = found ? proj_list_get_count(found.get()) : 0;
        pj_ptr best;
        double best_accuracy = std::numeric_limits<double>::infinity();
        for (int i = 0; i < count; ++i) {
            pj_ptr each(proj_list_get(context, found.get(), i));
            if (proj_coordoperation_get_grid_used_count(context, each.get()) > 0) continue;
            const auto area = area_of(each.get());
            if (!area || !area->covers(place_)) {
                if (!elsewhere_) elsewhere_ = std::move(each);
                continue;
            }
            const double given = proj_coordoperation_get_accuracy(context, each.get());
            const double accuracy = given < 0 ? std::numeric_limits<double>::max() : given;
            if (accuracy >= best_accuracy) continue;
            best_accuracy = accuracy;
            best = std::move(each);
        }
        return best;
    }

    /// The first that was found for another place.
    pj_ptr elsewhere() { return std::move(elsewhere_); }

private:
    point place_;
    pj_factory_ptr factory_ = operation_factory();
    pj_ptr elsewhere_;
};

}  // namespace

PJ* wgs84_system() {
    static const pj_ptr object(proj_create(proj_context(), "EPSG:4326"));
    return object.get();
}

pj_ptr easting_first_way(const PJ* from, const PJ* to) {
    if (!from || !to) return nullptr;
    const pj_ptr way(proj_create_crs_to_crs_from_pj(proj_context(), from, to, nullptr, nullptr));
    return pj_ptr(way ? proj_normalize_for_visualization(proj_context(), way.get()) : nullptr);
}

pj_ptr published_operation(const PJ* system, const geographic_area& area) {
    if (!system || !wgs84_system()) return nullptr;
    operation_search search(area);
    if (pj_ptr found = search.find(system, PROJ_INTERMEDIATE_CRS_USE_IF_NO_DIRECT_TRANSFORMATION))
        return found;
    if (pj_ptr found = search.elsewhere()) return found;
    // where there are operations with grids alone, PROJ looks for none by way of a third system by itself
    if (pj_ptr found = search.find(system, PROJ_INTERMEDIATE_CRS_USE_ALWAYS)) return found;
    return search.elsewhere();
}

std::optional<towgs84> shift_of(const PJ* operation) {
    const bool several = proj_get_type(operation) == PJ_TYPE_CONCATENATED_OPERATION;
    if (auto own = several ? parameters_of_steps(operation) : own_parameters(operation)) return own;
    const pj_ptr source(proj_get_source_crs(proj_context(), operation));
    const pj_ptr way(proj_normalize_for_visualization(proj_context(), operation));
    if (!source || !way) return {};
    const double degrees = unit_of(source.get()).factor * 180 / M_PI;
    const double meridian = meridian_of(source.get()).longitude;
    return fitted_shift(ellipsoid_of(source.get()), [&](point at) {
        const PJ_COORD from = proj_coord((at.x - meridian) / degrees, at.y / degrees, 0, HUGE_VAL);
        proj_errno_reset(way.get());
        const PJ_COORD moved = proj_trans(way.get(), PJ_FWD, from);
        return point{moved.xy.x, moved.xy.y};
    });
}

}  // namespace oxhost
