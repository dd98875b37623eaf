#pragma once
/// What the projection catalogue holds. Texts are narrow, in the system's code page.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace ox {

struct Tox_pj_ellps {
    std::uint32_t id = 0;  ///< what datums refer to
    std::string name;
    std::string code;  ///< value of the proj4 parameter "ellps"
    double a = 0;      ///< semi-major axis, metres
    double b = 0;      ///< semi-minor axis, metres, when `has_b`
    double rf = 0;     ///< inverse flattening, when `has_rf`
    bool has_b = false;
    bool has_rf = false;
};

struct Tox_pj_datum {
    std::uint32_t id = 0;  ///< number of the row, from 1
    std::string name;
    std::string code;  ///< value of the proj4 parameter "datum"
    // Position Vector transformation to WGS84: metres, arc seconds, parts per million.
    double shift_x = 0, shift_y = 0, shift_z = 0;
    double rotate_x = 0, rotate_y = 0, rotate_z = 0;
    double scale = 0;
    std::uint32_t ellps_id = 0;

    /// In the order of the proj4 parameter "towgs84".
    std::array<double, 7> towgs84() const {
        return {shift_x, shift_y, shift_z, rotate_x, rotate_y, rotate_z, scale};
    }
    void set_towgs84(const std::array<double, 7>& numbers) {
        std::tie(shift_x, shift_y, shift_z, rotate_x, rotate_y, rotate_z, scale) = std::tuple_cat(numbers);
    }
};

/// How a projection takes one of its parameters.
struct Tox_pj_slot {
    bool needs_input = false;  ///< the user enters the value
    bool used = false;         ///< the projection takes the parameter
    bool has_value = false;    ///< the catalogue gives the value
};

struct Tox_pj_dbl : Tox_pj_slot {
    bool has_min = false;
    bool has_max = false;
    double min = 0;
    double max = 0;
    double value = 0;
};

struct Tox_pj_int : Tox_pj_slot {
    std::int32_t value = 0;
};

struct Tox_pj_bool : Tox_pj_slot {
    bool value = false;
};

struct Tox_pj_str : Tox_pj_slot {
    std::string text;
};

/// A projection, or one zone of a zonal one. Angles in degrees, lengths in metres.
struct Tox_pj_proj {
    std::uint32_t id = 0;  ///< number in its list, from 1
    std::string name;
    std::string alias;
    std::string proj;  ///< value of the proj4 parameter "proj"
    Tox_pj_int zone;
    Tox_pj_str zone_n;  ///< what the user knows the zone as; may be empty
    Tox_pj_dbl lon_0;
    Tox_pj_dbl lonc;
    Tox_pj_dbl lat_0;
    Tox_pj_dbl x_0;
    Tox_pj_dbl y_0;
    Tox_pj_dbl lat_ts;
    Tox_pj_dbl lat_1;
    Tox_pj_dbl lat_2;
    Tox_pj_dbl k_0;
    Tox_pj_dbl alpha;
    Tox_pj_bool south;
    Tox_pj_str units;
    Tox_pj_str datum;  ///< name of the datum that a zonal projection belongs to
};

/// Owns its records; they stay where they are while others are appended.
template <class Record>
class Tox_pj_list {
public:
    std::size_t size() const { return records_.size(); }
    bool empty() const { return records_.empty(); }
    Record& operator[](std::size_t index) { return *records_[index]; }
    const Record& operator[](std::size_t index) const { return *records_[index]; }

    Record& append() { return *records_.emplace_back(std::make_unique<Record>()); }
    /// New records are default-constructed.
    void resize(std::size_t size) {
        if (size < records_.size()) records_.resize(size);
        while (records_.size() < size) append();
    }
    void clear() { records_.clear(); }

    /// The first record that `matches`, or null.
    template <class Predicate>
    const Record* find_first(Predicate matches) const {
        for (const auto& record : records_) {
            if (matches(*record)) return record.get();
        }
        return nullptr;
    }

private:
    std::vector<std::unique_ptr<Record>> records_;
};

using Tox_pj_ellps_list = Tox_pj_list<Tox_pj_ellps>;
using Tox_pj_datum_list = Tox_pj_list<Tox_pj_datum>;
using Tox_pj_proj_list = Tox_pj_list<Tox_pj_proj>;

}  // namespace ox
