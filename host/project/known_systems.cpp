#include "project/known_systems.h"

#include <algorithm>
#include <utility>

#include "project/schema.h"

namespace oxhost {

namespace {

/// Systems without an authority count from here, as GDAL's do.
constexpr std::int64_t first_own_row = 100000;

gis_directory& directory() {
    static gis_directory used;
    return used;
}

}  // namespace

void use_gis_directory(gis_directory used) { directory() = std::move(used); }
const gis_directory& current_gis_directory() { return directory(); }

known_systems::known_systems(sqlite::connection& db) : db_(db) {
    if (db.ask("SELECT count(*) FROM sqlite_master WHERE name='ox_systems'") == "0") return;
    sqlite::statement rows(db,
                           "SELECT proj4, srs_id FROM ox_systems JOIN gpkg_spatial_ref_sys USING (srs_id)");
    while (rows.step()) rows_[rows.text(0)] = rows.integer(1);
}

void known_systems::look_up(const std::deque<scene>& scenes) {
    if (!directory().look_up) return;
    std::map<std::string, extent> unknown;
    for (const scene& each : scenes)
        if (each.line && !each.line->bounds.empty() && !each.proj4.empty() && !rows_.contains(each.proj4))
            unknown[each.proj4].add(each.line->bounds);
    for (const auto& [text, bounds] : unknown)
        if (auto found = directory().look_up(text, bounds)) news_.emplace(text, *std::move(found));
}

void known_systems::store_news() {
    db_.run(
        "CREATE TABLE IF NOT EXISTS ox_systems (proj4 TEXT PRIMARY KEY NOT NULL, srs_id INTEGER NOT NULL)");
    register_own_table(db_, "ox_systems");
    sqlite::statement add(db_, "INSERT OR REPLACE INTO ox_systems VALUES (?1, ?2)");
    for (const auto& [text, system] : news_) {
        const std::int64_t row = row_of(system);
        add.bind(1, text).bind(2, row).run();
        rows_[text] = row;
    }
    news_.clear();
}

/// The system's row in gpkg_spatial_ref_sys: one that is there, else a new one.
std::int64_t known_systems::row_of(const gis_system& system) {
    sqlite::statement present(db_, system.epsg
                                       ? "SELECT srs_id FROM gpkg_spatial_ref_sys WHERE organization='EPSG'"
                                         " COLLATE NOCASE AND organization_coordsys_id=?1"
                                       : "SELECT srs_id FROM gpkg_spatial_ref_sys WHERE organization='NONE'"
                                         " COLLATE NOCASE AND definition=?1");
    system.epsg ? present.bind(1, std::int64_t{*system.epsg}) : present.bind(1, system.wkt);
    if (present.step()) return present.integer(0);
    std::int64_t row = first_own_row;
    sqlite::statement highest(db_, "SELECT max(srs_id) FROM gpkg_spatial_ref_sys");
    if (highest.step()) row = std::max(row, highest.integer(0) + 1);
    if (system.epsg) {
        sqlite::statement taken(db_, "SELECT 1 FROM gpkg_spatial_ref_sys WHERE srs_id=?1");
        if (!taken.bind(1, std::int64_t{*system.epsg}).step()) row = *system.epsg;
    }
    const bool has_wkt2 =  // GeoPackage's extension for newer texts, which another program has added
        db_.ask(
            "SELECT count(*) FROM pragma_table_info('gpkg_spatial_ref_sys') WHERE "
            "name='definition_12_063'") == "1";
    sqlite::statement add(db_, std::string("INSERT INTO gpkg_spatial_ref_sys (srs_name, srs_id, organization,"
                                           " organization_coordsys_id, definition") +
                                   (has_wkt2 ? ", definition_12_063) VALUES (?1, ?2, ?3, ?4, ?5, 'undefined')"
                                             : ") VALUES (?1, ?2, ?3, ?4, ?5)"));
    add.bind(1, system.name).bind(2, row).bind(3, std::string_view(system.epsg ? "EPSG" : "NONE"));
    add.bind(4, system.epsg ? std::int64_t{*system.epsg} : row).bind(5, system.wkt).run();
    return row;
}

std::optional<std::int64_t> known_systems::find(const std::string& proj4) const {
    const auto found = rows_.find(proj4);
    return found == rows_.end() ? std::nullopt : std::optional(found->second);
}

std::string known_systems::name(std::int64_t system) const {
    sqlite::statement row(db_, "SELECT srs_name FROM gpkg_spatial_ref_sys WHERE srs_id=?1");
    return row.bind(1, system).step() ? row.text(0) : std::string();
}

std::string known_systems::label(std::int64_t system) const {
    sqlite::statement row(db_,
                          "SELECT organization_coordsys_id FROM gpkg_spatial_ref_sys WHERE srs_id=?1 AND"
                          " organization='EPSG' COLLATE NOCASE");
    if (row.bind(1, system).step()) return "EPSG " + row.text(0);
    return std::to_string(system < first_own_row ? system : system - first_own_row + 1);
}

}  // namespace oxhost
