#include "project/gis_layers.h"

#include <algorithm>
#include <map>

#include "base/language.h"
#include "project/columns.h"
#include "project/known_systems.h"
#include "project/schema.h"

namespace oxhost {

namespace {

constexpr std::size_t most_views = 64;

/// SQLite keeps a view as it was written, comment included: that tells the store's own from others'.
constexpr auto own_views =
    "SELECT name, sql FROM sqlite_master WHERE type='view' AND sql LIKE"
    " 'CREATE VIEW \"scenes %\" AS /* scenes of one projection */%' ORDER BY name";

struct view {
    std::int64_t system = 0;
    std::string name, sql;
    std::vector<std::string> texts;
    std::size_t scenes = 0;
    extent bounds;
};

struct plan {
    std::int64_t layer_system = undefined_cartesian_srs;
    extent bounds;
    std::vector<view> views;   ///< by name
    std::size_t left_out = 0;  ///< projections beyond the most that have views
};

std::string as_text(std::string_view value) {
    std::string quoted = "'";
    for (const char c : value) quoted.append(c == '\'' ? 2 : 1, c);
    return quoted + '\'';
}

std::string view_sql(const view& of) {
    std::string texts;
    for (const std::string& each : of.texts) texts += (texts.empty() ? "" : ", ") + as_text(each);
    return "CREATE VIEW " + as_identifier(of.name) +
           " AS /* scenes of one projection */ SELECT * FROM scenes WHERE proj4 IN (" + texts + ")";
}

/// A name that nothing else in the file has.
std::string free_name(sqlite::connection& db, std::string name) {
    sqlite::statement taken(db,
                            "SELECT 1 FROM sqlite_master WHERE name=?1 COLLATE NOCASE AND NOT"
                            " (type='view' AND sql LIKE '%/* scenes of one projection */%')");
    while (taken.bind(1, name).step()) {
        taken.reset();
        name += '_';
    }
    return name;
}

/// What is to be said of the scenes, by the systems that are known.
plan plan_of(sqlite::connection& db, const std::deque<scene>& scenes, const known_systems& known) {
    plan made;
    std::map<std::int64_t, view> by_system;
    bool all_known = true;
    for (const scene& each : scenes) {
        if (!each.line || each.line->bounds.empty()) continue;
        made.bounds.add(each.line->bounds);
        const auto system = known.find(each.proj4);
        if (!system) {
            all_known = false;
            continue;
        }
        view& of = by_system[*system];
        of.system = *system;
        ++of.scenes;
        of.bounds.add(each.line->bounds);
        if (std::ranges::find(of.texts, each.proj4) == of.texts.end()) of.texts.push_back(each.proj4);
    }
    if (all_known && by_system.size() == 1) {
        made.layer_system = by_system.begin()->first;
        return made;
    }
    for (auto& [system, of] : by_system) made.views.push_back(std::move(of));
    std::ranges::stable_sort(made.views, std::greater(), &view::scenes);
    if (made.views.size() > most_views) {
        made.left_out = made.views.size() - most_views;
        made.views.resize(most_views);
    }
    for (view& each : made.views) {
        each.name = free_name(db, "scenes " + known.label(each.system));
        std::ranges::sort(each.texts);
        each.sql = view_sql(each);
    }
    std::ranges::sort(made.views, {}, &view::name);
    return made;
}

/// Does the file say all that already?
bool is_published(sqlite::connection& db, const plan& wanted) {
    const std::string system = std::to_string(wanted.layer_system);
    for (const char* asked : {"SELECT srs_id FROM gpkg_geometry_columns WHERE table_name='scenes'",
                              "SELECT srs_id FROM gpkg_contents WHERE table_name='scenes'"})
        if (db.ask(asked) != system) return false;
    sqlite::statement views(db, own_views);
    sqlite::statement registered(db,
                                 "SELECT 1 FROM gpkg_contents JOIN gpkg_geometry_columns USING (table_name,"
                                 " srs_id) WHERE table_name=?1 AND srs_id=?2");
    auto expected = wanted.views.begin();
    for (; views.step(); ++expected) {
        if (expected == wanted.views.end() || views.text(0) != expected->name ||
            views.text(1) != expected->sql)
            return false;
        if (!registered.bind(1, expected->name).bind(2, expected->system).step()) return false;
        registered.reset();
    }
    return expected == wanted.views.end();
}

void set_layer_system(sqlite::connection& db, std::int64_t system) {
    for (const char* sql : {"UPDATE gpkg_contents SET srs_id=?1 WHERE table_name='scenes'",
                            "UPDATE gpkg_geometry_columns SET srs_id=?1 WHERE table_name='scenes'"})
        sqlite::statement(db, sql).bind(1, system).run();
}

void add_view(sqlite::connection& db, const view& added, const std::string& system_name) {
    db.run(added.sql.c_str());
    const std::string description = std::string("Section lines in ") + system_name;
    sqlite::statement contents(db,
                               "INSERT INTO gpkg_contents (table_name, data_type, identifier, description,"
                               " min_x, min_y, max_x, max_y, srs_id) VALUES (?1, 'features', ?1, ?2, ?3, ?4,"
                               " ?5, ?6, ?7)");
    const extent& bounds = added.bounds;
    contents.bind(1, added.name).bind(2, description).bind(7, added.system);
    contents.bind(3, bounds.min_x).bind(4, bounds.min_y).bind(5, bounds.max_x).bind(6, bounds.max_y).run();
    sqlite::statement(db,
                      "INSERT INTO gpkg_geometry_columns SELECT ?1, column_name, geometry_type_name, ?2, z, m"
                      " FROM gpkg_geometry_columns WHERE table_name='scenes'")
        .bind(1, added.name)
        .bind(2, added.system)
        .run();
}

}  // namespace

void gis_layers::load() {
    published_ = db_.ask(
                     "SELECT count(*) FROM gpkg_geometry_columns JOIN gpkg_contents USING (table_name)"
                     " WHERE table_name='scenes' AND gpkg_geometry_columns.srs_id=-1 AND"
                     " gpkg_contents.srs_id=-1") == "0" ||
                 !db_.ask(own_views).empty();
}

void gis_layers::withdraw() {
    if (!published_) return;
    set_layer_system(db_, undefined_cartesian_srs);
    std::vector<std::string> names;
    sqlite::statement views(db_, own_views);
    while (views.step()) names.push_back(views.text(0));
    const bool counted =
        db_.ask("SELECT count(*) FROM sqlite_master WHERE name='gpkg_ogr_contents'") == "1";  // GDAL's
    for (const std::string& each : names) {
        for (const char* table : {"gpkg_geometry_columns", "gpkg_contents", "gpkg_ogr_contents"})
            if (counted || table != std::string_view("gpkg_ogr_contents"))
                sqlite::statement(db_, std::string("DELETE FROM ") + table + " WHERE table_name=?1")
                    .bind(1, each)
                    .run();
        db_.run(("DROP VIEW " + as_identifier(each)).c_str());
    }
}

void gis_layers::publish(const std::deque<scene>& scenes, bool changed, const std::filesystem::path& file) {
    known_systems known(db_);
    known.look_up(scenes);
    const bool learns = known.has_news();
    plan wanted = learns ? plan() : plan_of(db_, scenes, known);
    if (learns || changed || !is_published(db_, wanted)) {
        sqlite::transaction change(db_);
        if (learns) {
            known.store_news();
            wanted = plan_of(db_, scenes, known);
        }
        withdraw();
        set_layer_system(db_, wanted.layer_system);
        for (const view& each : wanted.views) add_view(db_, each, known.name(each.system));
        refresh_layer(db_, wanted.bounds);
        change.commit();
        published_ = wanted.layer_system != undefined_cartesian_srs || !wanted.views.empty();
    }
    if (wanted.left_out && current_gis_directory().tell)
        current_gis_directory().tell(
            file.string() + ": " + std::to_string(wanted.left_out) + ' ' +
            std::string(
                in_language("проекций сверх 64 не получили своего слоя для других программ ГИС",
                            "projections beyond 64 have no layer of their own for other GIS programs")));
}

}  // namespace oxhost
