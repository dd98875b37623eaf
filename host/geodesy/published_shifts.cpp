#include "geodesy/published_shifts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>

#include "base/memo.h"
#include "base/numbers.h"
#include "geodesy/datum_way.h"
#include "geodesy/place.h"

namespace oxhost {
namespace {

std::optional<published_shift> read_shift(const PJ* operation) {
    auto values = shift_of(operation);
    if (!values) return {};
    published_shift shift{};
    shift.values = *std::move(values);
    const char* authority = proj_get_id_auth_name(operation, 0);
    const char* code = proj_get_id_code(operation, 0);
    if (!authority || !code) return {};  // put together by PROJ, published by nobody
    shift.code = std::string(authority) + ':' + code;
    shift.name = proj_get_name(operation);
    const double accuracy = proj_coordoperation_get_accuracy(proj_context(), operation);
    if (accuracy >= 0) shift.accuracy = accuracy;
    if (const auto area = area_of(operation)) {
        shift.west = area->west, shift.south = area->south;
        shift.east = area->east, shift.north = area->north;
    }
    return shift;
}

std::set<std::string> epsg_codes(PJ_TYPE type, bool withdrawn_too) {
    std::set<std::string> codes;
    const auto list = proj_get_codes_from_database(proj_context(), "EPSG", type, withdrawn_too);
    for (auto code = list; code && *code; ++code) codes.insert(*code);
    proj_string_list_destroy(list);
    return codes;
}

bool same_shape(const ellipsoid& a, const ellipsoid& b) {
    return std::abs(a.a - b.a) < 1e-3 && std::abs(a.rf - b.rf) < 1e-6;
}

/// Those to WGS 84 that EPSG has withdrawn, which PROJ keeps but offers for no system.
void add_withdrawn(const ellipsoid& shape, std::vector<published_shift>& shifts) {
    const auto valid = epsg_codes(PJ_TYPE_TRANSFORMATION, false);
    for (const std::string& code : epsg_codes(PJ_TYPE_TRANSFORMATION, true)) {
        if (valid.contains(code)) continue;
        const pj_ptr operation(proj_create_from_database(proj_context(), "EPSG", code.c_str(),
                                                         PJ_CATEGORY_COORDINATE_OPERATION, 0, nullptr));
        const pj_ptr source(operation ? proj_get_source_crs(proj_context(), operation.get()) : nullptr);
        const pj_ptr target(operation ? proj_get_target_crs(proj_context(), operation.get()) : nullptr);
        if (!source || !target || std::string_view(proj_get_name(target.get())) != "WGS 84") continue;
        if (!same_shape(ellipsoid_of(source.get()), shape)) continue;
        if (auto shift = read_shift(operation.get())) {
            shift->current = false;
            shifts.push_back(*std::move(shift));
        }
    }
}

/// Those of every geographic system of the EPSG data set that stands on this ellipsoid.
std::vector<published_shift> shifts_from_all(const ellipsoid& shape) {
    std::vector<published_shift> shifts;
    for (const std::string& code : epsg_codes(PJ_TYPE_GEOGRAPHIC_2D_CRS, false)) {
        const pj_ptr system(
            proj_create_from_database(proj_context(), "EPSG", code.c_str(), PJ_CATEGORY_CRS, 0, nullptr));
        if (!system || !same_shape(ellipsoid_of(system.get()), shape)) continue;
        for (auto& shift : published_shifts(system.get())) shifts.push_back(std::move(shift));
    }
    add_withdrawn(shape, shifts);
    return shifts;
}

}  // namespace

bool published_shift::covers(point place) const {
    return geographic_area{west, south, east, north}.covers(place);
}

std::vector<published_shift> published_shifts(const PJ* crs_object) {
    std::vector<published_shift> shifts;
    PJ_CONTEXT* const context = proj_context();
    const pj_ptr base = geographic_base(crs_object);
    if (!base || !wgs84_system()) return shifts;
    const pj_factory_ptr factory = operation_factory();
    if (const auto area = area_of(crs_object)) {
        proj_operation_factory_context_set_area_of_interest(context, factory.get(), area->west, area->south,
                                                            area->east, area->north);
    }
    // a shift by way of a third system is nobody's publication
    proj_operation_factory_context_set_allow_use_intermediate_crs(context, factory.get(),
                                                                  PROJ_INTERMEDIATE_CRS_USE_NEVER);
    proj_operation_factory_context_set_allow_ballpark_transformations(context, factory.get(), 0);
    for (const bool current : {true, false}) {
        proj_operation_factory_context_set_discard_superseded(context, factory.get(), current);
        const pj_list_ptr found(proj_create_operations(context, base.get(), wgs84_system(), factory.get()));
        const int count = found ? proj_list_get_count(found.get()) : 0;
        for (int i = 0; i < count; ++i) {
            const pj_ptr operation(proj_list_get(context, found.get(), i));
            auto shift = read_shift(operation.get());
            if (!shift || std::ranges::find(shifts, shift->code, &published_shift::code) != shifts.end())
                continue;
            shift->current = current;
            shifts.push_back(*std::move(shift));
        }
    }
    take_proj_complaint();
    return shifts;
}

const std::vector<published_shift>& published_shifts(const ellipsoid& shape) {
    static memo<std::vector<published_shift>> kept(64);
    return kept.of(number_text(shape.a), number_text(shape.rf), [&] { return shifts_from_all(shape); });
}

const published_shift* best_shift(const std::vector<published_shift>& shifts, point place) {
    const published_shift* best = nullptr;
    const auto rank = [](const published_shift& shift) {
        return std::pair(!shift.current, shift.accuracy.value_or(HUGE_VAL));
    };
    for (const auto& shift : shifts) {
        if (shift.covers(place) && (!best || rank(shift) < rank(*best))) best = &shift;
    }
    return best || shifts.empty() ? best : &shifts.front();
}

std::vector<published_shift> publications_of(const towgs84& values, const ellipsoid& shape) {
    std::vector<published_shift> current, former;
    for (const auto& each : published_shifts(shape))
        if (same_shift(values, each.values)) (each.current ? current : former).push_back(each);
    return current.empty() ? former : current;
}

namespace {

bool alike(const towgs84& a, const towgs84& b, double rotation_sign) {
    // a centimetre; a thousandth of an arc-second or of 1 ppm: at most 3 cm on the ground
    constexpr std::array<double, 7> tolerance{0.01, 0.01, 0.01, 1e-3, 1e-3, 1e-3, 2e-3};
    for (std::size_t i = 0; i < tolerance.size(); ++i) {
        const double sign = i >= 3 && i < 6 ? rotation_sign : 1;
        if (!(std::abs(a[i] - sign * b[i]) <= tolerance[i])) return false;
    }
    return true;
}

}  // namespace

bool same_shift(const towgs84& a, const towgs84& b) { return alike(a, b, 1); }

bool rotations_reversed(const towgs84& a, const towgs84& b) { return alike(a, b, -1) && !alike(a, b, 1); }

}  // namespace oxhost
