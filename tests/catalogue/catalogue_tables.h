#pragma once
/// The built tables, read back by the product, beside the sources that they were made of.

#include "catalogue/records.h"
#include "projection/proj4_params.h"
#include "support/catalogue.h"

namespace catalogue_test {

/// Row i of a list was made of record i of the sources.
struct tables {
    oxhost::catalogue_records sources;
    ox::Tox_pj_ellps_list ellps;
    ox::Tox_pj_datum_list datums;
    ox::Tox_pj_proj_list usual, zonal;
};

/// Loaded once; a table that does not load is left empty, which every check of its rows refuses.
const tables& built();

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

/// 39 of a zone "7 (CM 39E)", -171 of "2N (CM 171W)", 23.5 of "X1 (CM 23d30'E)".
double named_meridian(const ox::Tox_pj_proj& zone);

}  // namespace catalogue_test
