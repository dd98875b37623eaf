#include <algorithm>
#include <cmath>

#include "projection/projection_model.h"
#include "support/text.h"

namespace ox::dialog {

namespace {

constexpr double parameter_tolerance = 0.0001;  // degrees or metres

bool is_south(const Tox_pj_proj& record) { return record.south.used && record.south.value; }

/// Does the text carry every parameter that the record uses, with the record's values?
bool carries_parameters(const Tox_proj4_params& text, const Tox_pj_proj& record) {
    return std::ranges::all_of(parameter_rows, [&](const parameter_row& row) {
        const Tox_pj_dbl& slot = record.*row.slot;
        const auto value = (text.*row.parameter).get();
        return !slot.used || (value && std::abs(*value - slot.value) <= parameter_tolerance);
    });
}

}  // namespace

void projection_model::classify(std::string_view text) {
    params_.clear();
    params_.set_text(text);
    params_.parse();

    current_of(projection_type::zonal) = find_zonal();
    if (current_of(projection_type::zonal)) {
        type_ = projection_type::zonal;
    } else if (params_.is_latlong()) {
        type_ = projection_type::geographic;
        current_of(type_) = &projections()[0];  // "latlong" is the same system: x is longitude always
    } else if (const Tox_pj_proj* usual = find_usual()) {
        type_ = projection_type::usual;
        current_of(type_) = usual;
    } else {
        type_ = projection_type::undefined;
    }

    ellipsoid_ = find_ellipsoid();
    if (!ellipsoid_) ellipsoid_ = find_ellps_by_code(ellipsoids_, "wgs84");

    datum_ = params_.datum.present ? find_datum_by_code(datums_, params_.datum.value()) : nullptr;
    if (!datum_) set_datum_values(params_.towgs84.get().value_or(std::array<double, 7>{}));
}

const Tox_pj_proj* projection_model::find_zonal() const {
    const auto proj = params_.proj.get();
    const auto zone = params_.zone.get();
    if (proj && zone && equal_no_case(*proj, "utm"))
        if (const auto* record = find_proj_by_code_zone_south(list_of(projection_type::zonal), *proj, *zone,
                                                              params_.south.get().value_or(false)))
            return record;
    return proj ? find_zonal_by_parameters() : nullptr;
}

const Tox_pj_proj* projection_model::find_zonal_by_parameters() const {
    const Tox_pj_ellps* ellipsoid = find_ellipsoid();
    if (!ellipsoid || !params_.towgs84.present) return nullptr;
    const Tox_pj_datum* datum = find_datum_by_params(datums_, ellipsoid->id, params_.towgs84.value());
    if (!datum) return nullptr;
    const bool south = params_.south.get().value_or(false);
    return list_of(projection_type::zonal).find_first([&](const Tox_pj_proj& record) {
        return equal_no_case(record.proj, params_.proj.value()) && is_south(record) == south &&
               carries_parameters(params_, record) && equal_no_case(record.datum.text, datum->name);
    });
}

const Tox_pj_proj* projection_model::find_usual() const {
    if (!params_.proj.present) return nullptr;
    return match_proj4(list_of(projection_type::usual), {.proj = params_.proj.value(),
                                                         .lat_0 = params_.lat_0.get().value_or(0),
                                                         .has_lat_1 = params_.lat_1.present,
                                                         .has_lat_2 = params_.lat_2.present,
                                                         .has_lat_ts = params_.lat_ts.present,
                                                         .has_k_0 = params_.k_0.present,
                                                         .south = params_.south.get().value_or(false)});
}

const Tox_pj_ellps* projection_model::find_ellipsoid() const {
    const Tox_pj_ellps* found =
        params_.ellps.present ? find_ellps_by_code(ellipsoids_, params_.ellps.value()) : nullptr;
    return found ? found
                 : find_ellps_by_axes(ellipsoids_, params_.a.get(), params_.b.get(), params_.rf.get());
}

}  // namespace ox::dialog
