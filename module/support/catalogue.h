#pragma once
/// The projection catalogue: four dBase tables in the folder "prj_def" beside the host's executable.
///
/// Plain data without a cache: who needs a list loads it and owns it. What is missing or damaged is left
/// out: a table that cannot be read gives an empty list. [ui]

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "support/catalogue_records.h"

namespace ox {

// ---- Where the tables are ----------------------------------------------------------------------------

inline constexpr const char* usual_projections_table = "prj_def/pj_proj1.dbf";
inline constexpr const char* zonal_projections_table = "prj_def/pj_proj2.dbf";
inline constexpr const char* datums_table = "prj_def/pj_datum.dbf";
inline constexpr const char* ellps_table = "prj_def/pj_ellps.dbf";

/// Folder of the host's executable with a separator at its end; narrow, in the system's code page.
std::string catalogue_dir();
std::string catalogue_path(std::string_view table);

// ---- Loading -----------------------------------------------------------------------------------------

inline constexpr int bad_structure = 200;  ///< a column that must be there is missing

/// Replace the list by the rows of the table: 0 success, 1 the file cannot be opened, `bad_structure`. The
/// list is empty after a failure. Rows that begin beyond the end of a cut file are left out.
int load_ellps(const std::string& path, Tox_pj_ellps_list& list);
int load_datums(const std::string& path, Tox_pj_datum_list& list);
int load_projections(const std::string& path, Tox_pj_proj_list& list);

/// Appends the two geographic entries, "longlat" and "latlong", which no table holds.
void add_geographic(Tox_pj_proj_list& list);

// ---- Finding: the first match in the order of the list, or null; texts compare without regard to case ----

template <class Record>
const Record* find_by_id(const Tox_pj_list<Record>& list, std::uint32_t id) {
    return list.find_first([id](const Record& record) { return record.id == id; });
}

const Tox_pj_proj* find_proj_by_name_zone(const Tox_pj_proj_list& list, std::string_view name,
                                          std::int32_t zone);
const Tox_pj_proj* find_proj_by_code_zone_south(const Tox_pj_proj_list& list, std::string_view proj,
                                                std::int32_t zone, bool south);
const Tox_pj_proj* find_proj_by_code_south(const Tox_pj_proj_list& list, std::string_view proj, bool south);

/// What of a proj4 text decides which projection of the catalogue it is.
struct proj4_traits {
    std::string_view proj;
    double lat_0 = 0;  ///< 0 when absent
    bool has_lat_1 = false;
    bool has_lat_2 = false;
    bool has_lat_ts = false;
    bool has_k_0 = false;
    bool south = false;
};

/// A record may use more than the text has, but must use lat_1, lat_2 and lat_ts where the text has them,
/// and k_0 where it has k_0 without lat_ts. South and lat_0 (within 0.0001 degrees) must agree where the
/// record fixes them.
const Tox_pj_proj* match_proj4(const Tox_pj_proj_list& list, const proj4_traits& text);

/// An empty code matches a record without one.
const Tox_pj_ellps* find_ellps_by_code(const Tox_pj_ellps_list& list, std::string_view code);
/// Exact semi-major axis (m), and exact b or rf; where the record stores the other of the two, the one
/// that follows from it within 1e-6.
const Tox_pj_ellps* find_ellps_by_axes(const Tox_pj_ellps_list& list, std::optional<double> a,
                                       std::optional<double> b, std::optional<double> rf);

/// An empty text finds nothing.
const Tox_pj_datum* find_datum_by_code(const Tox_pj_datum_list& list, std::string_view code);
const Tox_pj_datum* find_datum_by_name(const Tox_pj_datum_list& list, std::string_view name);
/// All numbers exactly.
const Tox_pj_datum* find_datum_by_params(const Tox_pj_datum_list& list, std::uint32_t ellps_id,
                                         const std::array<double, 7>& towgs84);

}  // namespace ox
