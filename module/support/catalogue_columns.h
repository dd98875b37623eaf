#pragma once
/// Columns of the catalogue tables, all of them required. Names compare without regard to case.

#include <array>
#include <cstddef>
#include <string_view>

namespace ox {

/// Id, display name, proj4 code, semi-major and semi-minor axis (m), inverse flattening; the last two may
/// be empty in a row.
inline constexpr std::array<std::string_view, 6> ellps_columns{"ELLPS_ID", "ELLPS_NAME", "ELLPS",
                                                               "A",        "B",          "RF"};

/// Display name, proj4 code, the seven numbers of "towgs84", id of the ellipsoid.
inline constexpr std::array<std::string_view, 10> datum_columns{
    "DATUM_NAME", "DATUM",    "SHIFT_X0", "SHIFT_Y0", "SHIFT_Z0",
    "ROTAT_X0",   "ROTAT_Y0", "ROTAT_Z0", "SCALE_F0", "ELLPS_ID",
};

/// A parameter has four columns: a flag that switches it on with a number above 0, its value (empty where
/// the user enters it), lower and upper bound. K stands in the tables but K_0 alone carries the scale
/// factor. DATUM is the name of a datum.
inline constexpr std::array<std::string_view, 54> projection_columns{
    "PRJ_NAME", "PRJ_ALIAS", "PROJ",       "SOUTH",       //
    "LAT_1",    "LAT_1_V",   "LAT_1_MIN",  "LAT_1_MAX",   //
    "LAT_2",    "LAT_2_V",   "LAT_2_MIN",  "LAT_2_MAX",   //
    "LAT_TS",   "LAT_TS_V",  "LAT_TS_MIN", "LAT_TS_MAX",  //
    "LAT_0",    "LAT_0_V",   "LAT_0_MIN",  "LAT_0_MAX",   //
    "LON_0",    "LON_0_V",   "LON_0_MIN",  "LON_0_MAX",   //
    "LONC",     "LONC_V",    "LONC_MIN",   "LONC_MAX",    //
    "ALPHA",    "ALPHA_V",   "ALPHA_MIN",  "ALPHA_MAX",   //
    "K",        "K_V",       "K_MIN",      "K_MAX",       //
    "K_0",      "K_0_V",     "K_0_MIN",    "K_0_MAX",     //
    "X_0",      "X_0_V",     "X_0_MIN",    "X_0_MAX",     //
    "Y_0",      "Y_0_V",     "Y_0_MIN",    "Y_0_MAX",     //
    "UNITS",    "UNITS_V",   "ZONE",       "ZONE_V",     "ZONE_N", "DATUM",
};

/// Place of a column in its table; a name that is not there does not compile.
template <std::size_t count>
consteval std::size_t column_of(const std::array<std::string_view, count>& columns, std::string_view name) {
    std::size_t index = 0;
    while (columns.at(index) != name) ++index;
    return index;
}

}  // namespace ox
