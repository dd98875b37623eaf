#pragma once
/// Which coordinate system of the file a projection text is; only project's own sources include this.

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "project/gis_systems.h"
#include "project/project.h"
#include "project/sqlite.h"

namespace oxhost {

class known_systems {
public:
    /// As the file's `ox_systems` has them.
    explicit known_systems(sqlite::connection& db);

    /// Asks the directory about the scenes' texts that the file does not know.
    void look_up(const std::deque<scene>& scenes);
    /// It knew some of them.
    bool has_news() const { return !news_.empty(); }
    /// Gives them rows, inside a transaction.
    void store_news();

    /// The text's row in gpkg_spatial_ref_sys.
    std::optional<std::int64_t> find(const std::string& proj4) const;
    std::string name(std::int64_t system) const;
    /// "EPSG 32640", or a number that stays with the system.
    std::string label(std::int64_t system) const;

private:
    std::int64_t row_of(const gis_system& system);

    sqlite::connection& db_;
    std::map<std::string, std::int64_t> rows_;
    std::map<std::string, gis_system> news_;
};

}  // namespace oxhost
