#include <cmath>

#include "support/catalogue.h"
#include "support/text.h"

namespace ox {
namespace {

constexpr double lat_0_tolerance = 0.0001;  // degrees
constexpr double derived_tolerance = 0.000001;

bool is_south(const Tox_pj_proj& record) { return record.south.used && record.south.value; }

// Takes a value of the text against the record's own, or against the one that follows from its other number.
bool agrees(std::optional<double> given, bool has_own, double own, bool has_other, double derived,
            double other) {
    if (!given) return false;
    if (has_own) return *given == own;
    return has_other && std::abs(derived - other) <= derived_tolerance;
}

}  // namespace

const Tox_pj_proj* find_proj_by_name_zone(const Tox_pj_proj_list& list, std::string_view name,
                                          std::int32_t zone) {
    return list.find_first([&](const Tox_pj_proj& record) {
        return record.zone.value == zone && equal_no_case(record.name, name);
    });
}

const Tox_pj_proj* find_proj_by_code_zone_south(const Tox_pj_proj_list& list, std::string_view proj,
                                                std::int32_t zone, bool south) {
    return list.find_first([&](const Tox_pj_proj& record) {
        return record.zone.value == zone && is_south(record) == south && equal_no_case(record.proj, proj);
    });
}

const Tox_pj_proj* find_proj_by_code_south(const Tox_pj_proj_list& list, std::string_view proj, bool south) {
    return list.find_first([&](const Tox_pj_proj& record) {
        return is_south(record) == south && equal_no_case(record.proj, proj);
    });
}

const Tox_pj_proj* match_proj4(const Tox_pj_proj_list& list, const proj4_traits& text) {
    return list.find_first([&](const Tox_pj_proj& record) {
        const auto& lat_0 = record.lat_0;
        return equal_no_case(record.proj, text.proj) &&
               (!record.south.has_value || record.south.value == text.south) &&
               (!lat_0.has_value || std::abs(text.lat_0 - lat_0.value) < lat_0_tolerance) &&
               (!text.has_lat_1 || record.lat_1.used) && (!text.has_lat_2 || record.lat_2.used) &&
               (text.has_lat_ts ? record.lat_ts.used : !text.has_k_0 || record.k_0.used);
    });
}

const Tox_pj_ellps* find_ellps_by_code(const Tox_pj_ellps_list& list, std::string_view code) {
    return list.find_first([&](const Tox_pj_ellps& ellps) { return equal_no_case(ellps.code, code); });
}

const Tox_pj_ellps* find_ellps_by_axes(const Tox_pj_ellps_list& list, std::optional<double> a,
                                       std::optional<double> b, std::optional<double> rf) {
    if (!a) return nullptr;
    const double rf_of_b = *a / (*a - b.value_or(0));
    const double b_of_rf = (1 - 1 / rf.value_or(1)) * *a;
    return list.find_first([&](const Tox_pj_ellps& ellps) {
        return ellps.a == *a && (agrees(b, ellps.has_b, ellps.b, ellps.has_rf, rf_of_b, ellps.rf) ||
                                 agrees(rf, ellps.has_rf, ellps.rf, ellps.has_b, b_of_rf, ellps.b));
    });
}

const Tox_pj_datum* find_datum_by_code(const Tox_pj_datum_list& list, std::string_view code) {
    if (code.empty()) return nullptr;
    return list.find_first([&](const Tox_pj_datum& datum) { return equal_no_case(datum.code, code); });
}

const Tox_pj_datum* find_datum_by_name(const Tox_pj_datum_list& list, std::string_view name) {
    if (name.empty()) return nullptr;
    return list.find_first([&](const Tox_pj_datum& datum) { return equal_no_case(datum.name, name); });
}

const Tox_pj_datum* find_datum_by_params(const Tox_pj_datum_list& list, std::uint32_t ellps_id,
                                         const std::array<double, 7>& towgs84) {
    return list.find_first(
        [&](const Tox_pj_datum& datum) { return datum.ellps_id == ellps_id && datum.towgs84() == towgs84; });
}

}  // namespace ox
