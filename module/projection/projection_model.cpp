#include "projection/projection_model.h"

#include "support/text.h"

namespace ox::dialog {

namespace {

std::string_view bare(std::string_view name) {
    constexpr std::string_view padding = " \t\n\r\v\f";  // more than the tables themselves are padded with
    const auto first = name.find_first_not_of(padding);
    if (first == std::string_view::npos) return {};
    return name.substr(first, name.find_last_not_of(padding) - first + 1);
}

}  // namespace

bool same_name(std::string_view a, std::string_view b) { return equal_no_case(bare(a), bare(b)); }

projection_model::projection_model() {
    add_geographic(list_of(projection_type::geographic));
    load_projections(catalogue_path(usual_projections_table), list_of(projection_type::usual));
    load_ellps(catalogue_path(ellps_table), ellipsoids_);
    load_datums(catalogue_path(datums_table), datums_);
    load_projections(catalogue_path(zonal_projections_table), list_of(projection_type::zonal));
    custom_datum_.name = custom_datum_name;
}

void projection_model::set_type(projection_type type) {
    type_ = type;
    if (!current() && !projections().empty()) current_of(type) = &projections()[0];
}

void projection_model::choose_projection(std::uint32_t id) {
    if (const Tox_pj_proj* record = find_by_id(projections(), id)) current_of(type_) = record;
}

void projection_model::choose_zone(std::int32_t zone) {
    const auto& zones = list_of(projection_type::zonal);
    const Tox_pj_proj*& zonal = current_of(projection_type::zonal);
    if (!zonal || zonal->zone.value == zone) return;
    const Tox_pj_proj* record = find_proj_by_name_zone(zones, zonal->name, zone);
    if (!record) record = find_proj_by_name_zone(zones, zonal->name, 1);
    if (record) zonal = record;
}

const Tox_pj_proj& projection_model::zonal_record(std::string_view name) const {
    const auto& zones = list_of(projection_type::zonal);
    const auto of_zone = [&](std::int32_t zone) {
        return zones.find_first([&](const Tox_pj_proj& record) {
            return record.zone.value == zone && same_name(record.name, name);
        });
    };
    const Tox_pj_proj* zonal = current_of(projection_type::zonal);
    if (zonal && same_name(zonal->name, name)) return *zonal;
    const Tox_pj_proj* record = zonal ? of_zone(zonal->zone.value) : nullptr;
    if (!record) record = of_zone(1);
    if (!record)
        record = zones.find_first([&](const Tox_pj_proj& each) { return same_name(each.name, name); });
    return *record;
}

void projection_model::choose_datum(std::uint32_t id) {
    datum_ = id == 0 ? nullptr : find_by_id(datums_, id);
    if (datum_) ellipsoid_ = find_by_id(ellipsoids_, datum_->ellps_id);
}

void projection_model::set_datum_values(const std::array<double, 7>& towgs84) {
    const std::uint32_t ellps_id = ellipsoid_ ? ellipsoid_->id : 0;
    datum_ = find_datum_by_params(datums_, ellps_id, towgs84);
    if (datum_) return;
    custom_datum_.ellps_id = ellps_id;
    custom_datum_.set_towgs84(towgs84);
    datum_ = &custom_datum_;
}

std::string projection_model::compose(const parameter_values& inputs, std::int32_t zone) const {
    Tox_proj4_params result;
    const Tox_pj_proj* record = current();
    if (type_ == projection_type::undefined) return {};

    // `result` has no projection yet, so only a text without one hands its grids on.
    if (result.proj.equals(params_.proj)) result.nadgrids.copy_from(params_.nadgrids);

    if (record) {
        const bool zonal = type_ == projection_type::zonal;
        if (!record->proj.empty()) result.proj.set(record->proj);
        if (zonal && equal_no_case(record->proj, "utm")) {
            result.zone.set(zone);
        } else {
            for (std::size_t row = 0; row < parameter_rows.size(); ++row) {
                const Tox_pj_dbl& slot = record->*parameter_rows[row].slot;
                if (slot.used) (result.*parameter_rows[row].parameter).set(zonal ? slot.value : inputs[row]);
            }
        }
        if (record->units.used) result.units.set(record->units.text);
        if (record->south.used) result.south.set(record->south.value);
    }
    if (datum_) {
        if (!datum_->code.empty())
            result.datum.set(datum_->code);
        else
            result.towgs84.set(datum_->towgs84());
    }
    if (ellipsoid_) {
        if (!ellipsoid_->code.empty()) {
            result.ellps.set(ellipsoid_->code);
        } else {
            result.a.set(ellipsoid_->a);
            if (ellipsoid_->has_b) result.b.set(ellipsoid_->b);
            if (ellipsoid_->has_rf) result.rf.set(ellipsoid_->rf);
        }
    }
    result.compose();
    return result.text();
}

}  // namespace ox::dialog
