#pragma once
/// What the projection dialog knows: the text it was given, taken apart against the catalogue, and the
/// choices made since.

#include <optional>
#include <string>
#include <string_view>

#include "projection/parameter_rows.h"
#include "projection/proj4_params.h"
#include "support/catalogue.h"

namespace ox::dialog {

enum class projection_type : std::uint32_t { undefined, geographic, usual, zonal };

class projection_model {
public:
    /// Reads the catalogue; a table that is missing leaves its list empty.
    projection_model();
    projection_model(const projection_model&) = delete;
    projection_model& operator=(const projection_model&) = delete;

    /// Finds type, projection, ellipsoid and datum of a proj4 text (UTF-8). A datum is always current
    /// afterwards. Current records that the text does not select stay.
    void classify(std::string_view text);

    /// The proj4 text of the current choices. `inputs` are the numbers shown, in the order of
    /// `parameter_rows`; `zone` is the zone chosen, 0 for none.
    std::string compose(const parameter_values& inputs, std::int32_t zone) const;

    /// The text that was classified, as parameters.
    const Tox_proj4_params& params() const { return params_; }

    projection_type type() const { return type_; }
    /// A type without a current record takes the first of its list.
    void set_type(projection_type type);

    /// Projections of the current type, and the current one; none for the undefined type.
    const Tox_pj_proj_list& projections() const { return lists_[index_of(type_)]; }
    const Tox_pj_proj* current() const { return current_[index_of(type_)]; }
    void choose_projection(std::uint32_t id);
    /// Another zone of the current zonal projection; its zone 1 where there is no such zone.
    void choose_zone(std::int32_t zone);
    /// The zonal record of a name: the current one, else that of the current zone, else of zone 1, else the
    /// first.
    const Tox_pj_proj& zonal_record(std::string_view name) const;

    const Tox_pj_ellps_list& ellipsoids() const { return ellipsoids_; }
    const Tox_pj_ellps* ellipsoid() const { return ellipsoid_; }
    void choose_ellipsoid(std::uint32_t id) { ellipsoid_ = find_by_id(ellipsoids_, id); }

    const Tox_pj_datum_list& datums() const { return datums_; }
    /// Null when the user chose a custom datum without saying which.
    const Tox_pj_datum* datum() const { return datum_; }
    /// A datum of the catalogue brings its ellipsoid; id 0, the custom datum, leaves none current.
    void choose_datum(std::uint32_t id);
    /// The datum of the catalogue with the current ellipsoid and these numbers, else the custom one.
    void set_datum_values(const std::array<double, 7>& towgs84);

    static constexpr const char* custom_datum_name = "<Custom>";

private:
    const Tox_pj_proj* find_zonal() const;
    const Tox_pj_proj* find_zonal_by_parameters() const;
    const Tox_pj_proj* find_usual() const;
    /// The ellipsoid that the text names, by code, else by axes.
    const Tox_pj_ellps* find_ellipsoid() const;
    static constexpr std::size_t index_of(projection_type type) { return static_cast<std::size_t>(type); }
    Tox_pj_proj_list& list_of(projection_type type) { return lists_[index_of(type)]; }
    const Tox_pj_proj_list& list_of(projection_type type) const { return lists_[index_of(type)]; }
    const Tox_pj_proj*& current_of(projection_type type) { return current_[index_of(type)]; }
    const Tox_pj_proj* current_of(projection_type type) const { return current_[index_of(type)]; }

    Tox_proj4_params params_;
    projection_type type_ = projection_type::undefined;

    std::array<Tox_pj_proj_list, 4> lists_;  ///< by type; the undefined type has none
    std::array<const Tox_pj_proj*, 4> current_{};
    Tox_pj_ellps_list ellipsoids_;
    Tox_pj_datum_list datums_;
    const Tox_pj_ellps* ellipsoid_ = nullptr;
    const Tox_pj_datum* datum_ = nullptr;
    Tox_pj_datum custom_datum_;
};

/// Catalogue names: equal without regard to case, and to white space around them.
bool same_name(std::string_view a, std::string_view b);

}  // namespace ox::dialog
