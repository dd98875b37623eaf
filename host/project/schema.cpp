#include "project/schema.h"

#include <array>

#include "base/language.h"

namespace oxhost {

namespace {

/// 0x47504B47 is "GPKG", 10300 is GeoPackage 1.3; the three reference systems are those that every
/// GeoPackage must carry.
constexpr const char* geopackage_tables = R"sql(
PRAGMA application_id = 0x47504B47;
PRAGMA user_version = 10300;
CREATE TABLE gpkg_spatial_ref_sys (
  srs_name TEXT NOT NULL, srs_id INTEGER NOT NULL PRIMARY KEY, organization TEXT NOT NULL,
  organization_coordsys_id INTEGER NOT NULL, definition TEXT NOT NULL, description TEXT);
INSERT INTO gpkg_spatial_ref_sys VALUES
  ('Undefined cartesian SRS', -1, 'NONE', -1, 'undefined', 'undefined cartesian coordinate reference system'),
  ('Undefined geographic SRS', 0, 'NONE', 0, 'undefined', 'undefined geographic coordinate reference system'),
  ('WGS 84 geodetic', 4326, 'EPSG', 4326, 'GEOGCS["WGS 84",DATUM["WGS_1984",SPHEROID["WGS 84",6378137,298.257223563,AUTHORITY["EPSG","7030"]],AUTHORITY["EPSG","6326"]],PRIMEM["Greenwich",0,AUTHORITY["EPSG","8901"]],UNIT["degree",0.0174532925199433,AUTHORITY["EPSG","9122"]],AXIS["Latitude",NORTH],AXIS["Longitude",EAST],AUTHORITY["EPSG","4326"]]',
   'longitude/latitude coordinates in decimal degrees on the WGS 84 spheroid');
CREATE TABLE gpkg_contents (
  table_name TEXT NOT NULL PRIMARY KEY, data_type TEXT NOT NULL, identifier TEXT UNIQUE, description TEXT DEFAULT '',
  last_change DATETIME NOT NULL DEFAULT (strftime('%Y-%m-%dT%H:%M:%fZ','now')),
  min_x DOUBLE, min_y DOUBLE, max_x DOUBLE, max_y DOUBLE, srs_id INTEGER,
  CONSTRAINT fk_gc_r_srs_id FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys(srs_id));
CREATE TABLE gpkg_geometry_columns (
  table_name TEXT NOT NULL, column_name TEXT NOT NULL, geometry_type_name TEXT NOT NULL, srs_id INTEGER NOT NULL,
  z TINYINT NOT NULL, m TINYINT NOT NULL,
  CONSTRAINT pk_geom_cols PRIMARY KEY (table_name, column_name), CONSTRAINT uk_gc_table_name UNIQUE (table_name),
  CONSTRAINT fk_gc_tn FOREIGN KEY (table_name) REFERENCES gpkg_contents(table_name),
  CONSTRAINT fk_gc_srs FOREIGN KEY (srs_id) REFERENCES gpkg_spatial_ref_sys(srs_id));
)sql";

/// The texts stand before the line, so that a scan for them reads no overflow pages. Defaults serve
/// scenes that are drawn in a GIS program.
constexpr const char* scene_table = R"sql(
CREATE TABLE scenes (
  fid INTEGER PRIMARY KEY AUTOINCREMENT NOT NULL, caption TEXT NOT NULL DEFAULT '',
  profile BOOLEAN NOT NULL DEFAULT 1, proj4 TEXT NOT NULL DEFAULT '', geom LINESTRING);
INSERT INTO gpkg_contents (table_name, data_type, identifier, description, srs_id)
  VALUES ('scenes', 'features', 'scenes', 'Section lines; each in the projection that its proj4 text names', -1);
INSERT INTO gpkg_geometry_columns VALUES ('scenes', 'geom', 'LINESTRING', -1, 0, 0);
)sql";

/// GDAL lists every table that is no layer, unless the file speaks of tables without geometry; it does, by
/// the name that GDAL gave to that.
constexpr const char* extension_rows = R"sql(
CREATE TABLE IF NOT EXISTS gpkg_extensions (
  table_name TEXT, column_name TEXT, extension_name TEXT NOT NULL, definition TEXT NOT NULL, scope TEXT NOT NULL,
  CONSTRAINT ge_tce UNIQUE (table_name, column_name, extension_name));
INSERT INTO gpkg_extensions SELECT NULL, NULL, 'gdal_aspatial', 'http://gdal.org/geopackage_aspatial.html', 'read-write'
  WHERE NOT EXISTS (SELECT 1 FROM gpkg_extensions WHERE extension_name='gdal_aspatial');
)sql";

enum class envelope_value { is_empty, min_x, max_x, min_y, max_y };

template <envelope_value Asked>
void answer_envelope(sqlite3_context* context, int, sqlite3_value** arguments) {
    const auto* start = static_cast<const std::byte*>(sqlite3_value_blob(arguments[0]));
    const auto size = static_cast<std::size_t>(sqlite3_value_bytes(arguments[0]));
    if (!start) return sqlite3_result_null(context);
    try {
        const extent bounds = summarize_blob({start, size}).bounds;
        if constexpr (Asked == envelope_value::is_empty) return sqlite3_result_int(context, bounds.empty());
        if (bounds.empty()) return sqlite3_result_null(context);
        constexpr std::array corners{&extent::min_x, &extent::max_x, &extent::min_y, &extent::max_y};
        if constexpr (Asked != envelope_value::is_empty)
            sqlite3_result_double(context, bounds.*corners[static_cast<std::size_t>(Asked) - 1]);
    } catch (const blob_error& e) {
        sqlite3_result_error(context, e.what(), -1);
    }
}

}  // namespace

void create_schema(sqlite::connection& db) {
    sqlite::transaction change(db);
    db.run(geopackage_tables);
    db.run(scene_table);
    change.commit();
}

std::string reason_to_refuse(sqlite::connection& db) {
    const auto say = [](std::string_view russian, std::string_view english) {
        return words(russian, english);
    };
    constexpr auto geopackage = "1196444487";  // "GPKG"
    if (db.ask("PRAGMA application_id") != geopackage) return say("не GeoPackage", "is no GeoPackage");
    if (db.ask("SELECT count(*) FROM pragma_table_info('gpkg_geometry_columns')") == "0")
        return say("GeoPackage без слоёв, не проект", "is a GeoPackage without layers, no project");
    if (db.ask(
            "SELECT count(*) FROM gpkg_geometry_columns WHERE table_name='scenes' AND column_name='geom'") ==
        "0")
        return say("GeoPackage, но не проект: в нём нет слоя 'scenes' с линиями 'geom'",
                   "is a GeoPackage, but no project: it has no layer 'scenes' with lines 'geom'");
    const std::string missing = db.ask(
        "WITH needed(name) AS (VALUES ('fid'), ('geom'), ('caption'), ('profile'), ('proj4'))"
        "SELECT group_concat(name, ', ') FROM needed WHERE name NOT IN (SELECT name FROM "
        "pragma_table_info('scenes'))");
    if (missing.empty()) return {};
    return say("GeoPackage, но не проект: в его слое 'scenes' нет ",
               "is a GeoPackage, but no project: its layer 'scenes' lacks ") +
           missing;
}

void register_envelope_functions(sqlite::connection& db) {
    const auto add = [&db](const char* name, auto* function) {
        sqlite3_create_function_v2(db.get(), name, 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, function,
                                   nullptr, nullptr, nullptr);
    };
    add("ST_IsEmpty", answer_envelope<envelope_value::is_empty>);
    add("ST_MinX", answer_envelope<envelope_value::min_x>);
    add("ST_MaxX", answer_envelope<envelope_value::max_x>);
    add("ST_MinY", answer_envelope<envelope_value::min_y>);
    add("ST_MaxY", answer_envelope<envelope_value::max_y>);
}

void allow_dimensions(sqlite::connection& db, bool heights, bool measures) {
    constexpr auto where = " WHERE table_name='scenes' AND column_name='geom'";  // 2: may have them
    if (heights) db.run((std::string("UPDATE gpkg_geometry_columns SET z=2") + where).c_str());
    if (measures) db.run((std::string("UPDATE gpkg_geometry_columns SET m=2") + where).c_str());
}

void register_own_table(sqlite::connection& db, std::string_view table) {
    db.run(extension_rows);
    sqlite::statement add(
        db,
        "INSERT INTO gpkg_extensions SELECT ?1, NULL, 'ox_project',"
        " 'A table of the program oxhost, for its own use', 'read-write' WHERE NOT EXISTS"
        " (SELECT 1 FROM gpkg_extensions WHERE table_name=?1 AND extension_name='ox_project')");
    add.bind(1, table).run();
}

void refresh_layer(sqlite::connection& db, const extent& bounds) {
    sqlite::statement refresh(db,
                              "UPDATE gpkg_contents SET last_change=strftime('%Y-%m-%dT%H:%M:%fZ','now'),"
                              " min_x=?1, min_y=?2, max_x=?3, max_y=?4 WHERE table_name='scenes'");
    if (!bounds.empty())
        refresh.bind(1, bounds.min_x).bind(2, bounds.min_y).bind(3, bounds.max_x).bind(4, bounds.max_y);
    refresh.run();
}

}  // namespace oxhost
