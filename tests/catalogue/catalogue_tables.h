#pragma once
/// The built tables, read back by the product, beside the sources that they were made of.

#include <gtest/gtest.h>

#include "catalogue/records.h"
#include "projection/proj4_params.h"
#include "support/catalogue.h"

namespace catalogue_test {

struct tables {
    oxhost::catalogue_records sources;
    ox::Tox_pj_ellps_list ellps;
    ox::Tox_pj_datum_list datums;
    ox::Tox_pj_proj_list usual, zonal;
};

/// Loaded once; a table that does not load is left empty, which every check of its rows refuses.
const tables& built();

/// Calls with each record of a list and the one of the sources that it was made of.
template <class Record>
void for_each(const ox::Tox_pj_list<Record>& list, const std::vector<oxhost::catalogue_record>& sources,
              const auto& check) {
    for (std::size_t row = 0; row < list.size(); ++row) check(list[row], sources[row]);
}
void for_each_datum(const auto& check) { for_each(built().datums, built().sources.datums, check); }
void for_each_usual(const auto& check) { for_each(built().usual, built().sources.usual, check); }

/// The zones with their datums.
void for_each_zone(const auto& check) {
    for_each(built().zonal, built().sources.zonal, [&](const auto& record, const auto& source) {
        const auto* datum = find_datum_by_name(built().datums, record.datum.text);
        ASSERT_TRUE(datum) << record.name;
        check(record, source.source, *datum);
    });
}

/// The ellipsoid of a datum.
const ox::Tox_pj_ellps& ellps_of(const ox::Tox_pj_datum& datum);
/// The ellipsoid of the EPSG system that a source names; GRS 1980 for every other source.
const ox::Tox_pj_ellps& ellps_of_system(const std::string& source);

/// What the projection dialog composes from a record when its inputs hold the values of `inputs`.
/// Null leaves datum or ellipsoid out.
std::string compose(const ox::Tox_pj_proj& record, const ox::Tox_proj4_params& inputs,
                    const ox::Tox_pj_datum* datum, const ox::Tox_pj_ellps* ellps);

/// Values that a person might enter, within the record's limits.
ox::Tox_proj4_params plausible_inputs(const ox::Tox_pj_proj& record);

/// A record that composes nothing but datum and ellipsoid.
ox::Tox_pj_proj geographic();

/// 39 of a zone "7 (CM 39E)", -171 of "2N (CM 171W)", 23.5 of "X1 (CM 23d30'E)".
double named_meridian(const ox::Tox_pj_proj& zone);

}  // namespace catalogue_test
