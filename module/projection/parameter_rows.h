#pragma once
/// The ten projection parameters that are numbers, in the order in which the dialog shows them.

#include <array>
#include <cstddef>

#include "projection/proj4_params.h"
#include "resources/text.h"
#include "support/catalogue_records.h"

namespace ox {

struct parameter_row {
    std::int32_t label;
    Tox_pj_dbl Tox_pj_proj::*slot;
    Tox_proj4_param_dbl Tox_proj4_params::*parameter;
    double initial = 0;   ///< what a text without the parameter means
    double decimals = 4;  ///< places shown
};

inline constexpr std::array<parameter_row, 10> parameter_rows{{
    {text::central_meridian, &Tox_pj_proj::lon_0, &Tox_proj4_params::lon_0},
    {text::longitude_of_centre, &Tox_pj_proj::lonc, &Tox_proj4_params::lonc},
    {text::latitude_of_origin, &Tox_pj_proj::lat_0, &Tox_proj4_params::lat_0},
    {text::first_parallel, &Tox_pj_proj::lat_1, &Tox_proj4_params::lat_1},
    {text::first_parallel, &Tox_pj_proj::lat_ts, &Tox_proj4_params::lat_ts},
    {text::second_parallel, &Tox_pj_proj::lat_2, &Tox_proj4_params::lat_2},
    {text::scale_factor, &Tox_pj_proj::k_0, &Tox_proj4_params::k_0, 1.0, 5},
    {text::alpha, &Tox_pj_proj::alpha, &Tox_proj4_params::alpha},
    {text::false_easting, &Tox_pj_proj::x_0, &Tox_proj4_params::x_0, 0, 3},
    {text::false_northing, &Tox_pj_proj::y_0, &Tox_proj4_params::y_0, 0, 3},
}};

/// One number per row of `parameter_rows`.
using parameter_values = std::array<double, parameter_rows.size()>;

}  // namespace ox
