#include "catalogue_tables.h"

#include <stdexcept>

#include "proj_objects.h"
#include "support/text.h"

namespace catalogue_test {
namespace {

struct numeric_parameter {
    ox::Tox_pj_dbl ox::Tox_pj_proj::*slot;
    ox::Tox_proj4_param_dbl ox::Tox_proj4_params::*parameter;
    double plausible;
};

constexpr numeric_parameter numeric_parameters[] = {
#define PARAMETER(name, plausible) \
    { &ox::Tox_pj_proj::name, &ox::Tox_proj4_params::name, plausible }
    PARAMETER(lon_0, 45),   PARAMETER(lonc, 45),   PARAMETER(lat_0, 50),   PARAMETER(lat_1, 50),
    PARAMETER(lat_ts, 70),  PARAMETER(lat_2, 56),  PARAMETER(k_0, 0.9996), PARAMETER(alpha, 30),
    PARAMETER(x_0, 500000), PARAMETER(y_0, 100000)
#undef PARAMETER
};

tables load() {
    tables all;
    all.sources = oxhost::read_catalogue_sources(OX_CATALOGUE_SOURCES);
    const auto path = [](const char* table) { return std::string(OX_CATALOGUE_TABLES "/") + table; };
    load_ellps(path(ox::ellps_table), all.ellps);
    load_datums(path(ox::datums_table), all.datums);
    load_projections(path(ox::usual_projections_table), all.usual);
    load_projections(path(ox::zonal_projections_table), all.zonal);
    if (all.ellps.size() != all.sources.ellipsoids.size() || all.datums.size() != all.sources.datums.size() ||
        all.usual.size() != all.sources.usual.size() || all.zonal.size() != all.sources.zonal.size()) {
        throw std::runtime_error("the tables do not have the rows of their sources");
    }
    return all;
}

}  // namespace

const tables& built() {
    static const tables all = load();
    return all;
}

const ox::Tox_pj_ellps& ellps_of(const ox::Tox_pj_datum& datum) {
    const auto* ellps = find_by_id(built().ellps, datum.ellps_id);
    if (!ellps) throw std::runtime_error(datum.name + " has no ellipsoid");
    return *ellps;
}

const ox::Tox_pj_ellps& ellps_of_system(const std::string& source) {
    const auto code = code_after("EPSG:", source);
    const auto crs = epsg(code.value_or("4258"), PJ_CATEGORY_CRS);
    const proj_object ellipsoid(proj_get_ellipsoid(PJ_DEFAULT_CTX, crs.get()));
    double a = 0, rf = 0;
    proj_ellipsoid_get_parameters(PJ_DEFAULT_CTX, ellipsoid.get(), &a, nullptr, nullptr, &rf);
    const auto* ellps = find_ellps_by_axes(built().ellps, a, {}, rf);
    if (!ellps) throw std::runtime_error(source + " has an ellipsoid that is not there");
    return *ellps;
}

std::string compose(const ox::Tox_pj_proj& record, const ox::Tox_proj4_params& inputs,
                    const ox::Tox_pj_datum* datum, const ox::Tox_pj_ellps* ellps) {
    ox::Tox_proj4_params text;
    text.proj.set(record.proj);
    if (record.zone.used && ox::equal_no_case(record.proj, "utm")) text.zone.set(record.zone.value);
    for (const auto& p : numeric_parameters) {
        const auto& slot = record.*p.slot;
        if (slot.used) (text.*p.parameter).set(slot.has_value ? slot.value : (inputs.*p.parameter).value());
    }
    if (record.south.used) text.south.set(record.south.value);
    if (record.units.used) text.units.set(record.units.text);
    if (datum && !datum->code.empty()) {
        text.datum.set(datum->code);
    } else if (datum) {
        text.towgs84.set(datum->towgs84());
    }
    if (ellps && !ellps->code.empty()) {
        text.ellps.set(ellps->code);
    } else if (ellps) {
        text.a.set(ellps->a);
        if (ellps->has_b) text.b.set(ellps->b);
        if (ellps->has_rf) text.rf.set(ellps->rf);
    }
    text.compose();
    return text.text();
}

ox::Tox_proj4_params plausible_inputs(const ox::Tox_pj_proj& record) {
    ox::Tox_proj4_params inputs;
    for (const auto& p : numeric_parameters) {
        const auto& slot = record.*p.slot;
        const bool within =
            (!slot.has_min || p.plausible >= slot.min) && (!slot.has_max || p.plausible <= slot.max);
        (inputs.*p.parameter).set_value(within ? p.plausible : (slot.min + slot.max) / 2);
    }
    return inputs;
}

ox::Tox_pj_proj geographic() {
    ox::Tox_pj_proj record;
    record.proj = "longlat";
    return record;
}

double named_meridian(const ox::Tox_pj_proj& zone) {
    const std::string& name = zone.zone_n.text;
    return proj_todeg(proj_dmstor(name.c_str() + name.find("CM") + 2, nullptr));
}

}  // namespace catalogue_test
