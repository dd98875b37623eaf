/// A system that the host imports by its EPSG code is shown with its datum's name.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "catalogue_tables.h"
#include "geodesy/crs_import.h"
#include "geodesy/published_shifts.h"
#include "proj_objects.h"
#include "projection/projection_model.h"

namespace catalogue_test {
namespace {

/// What the projection dialog takes an imported system for.
const ox::dialog::projection_model& imported(const std::string& identifier) {
    static ox::dialog::projection_model model;
    model.classify(oxhost::import_crs(identifier).value_or(""));
    return model;
}

using names_by_system = std::map<std::string, std::set<std::string>>;

/// Names of the datum rows by the geographic systems on them.
names_by_system names_of_systems() {
    names_by_system names;
    for (const auto& record : built().sources.datums)
        for (const auto& system : record.systems) names[system].insert(record.text("DATUM_NAME"));
    return names;
}

/// Systems that no text tells apart from another one, or that EPSG relates to no WGS 84.
const std::map<std::string, std::string> taken_for_others{
    {"EPSG:4167", "ETRS89"},   {"EPSG:4283", "ETRS89"},  // zeros on GRS 1980, as ETRS89, the first of them
    {"EPSG:4612", "ETRS89"},   {"EPSG:4674", "ETRS89"},
    {"EPSG:4765", "ETRS89"},   {"EPSG:4229", "<Custom>"},  // Molodensky-Badekas, EPSG:7697
    {"EPSG:9474", "<Custom>"},  // PZ-90.02 and PZ-90.11: EPSG relates them to each other and to ITRF2008
    {"EPSG:9475", "<Custom>"},
};

TEST(CatalogueImports, OfBaseSystemsFindTheirName) {
    std::map<std::string, std::string> strangers;
    for (const auto& [system, names] : names_of_systems()) {
        const auto& model = imported(system);
        ASSERT_TRUE(model.datum()) << system;
        if (!names.contains(model.datum()->name)) strangers[system] = model.datum()->name;
    }
    EXPECT_EQ(strangers, taken_for_others);
}

/// In Venezuela a Molodensky-Badekas transformation is the best, whose seven parameters no row lists.
const std::set<std::string> by_another_method{"EPSG:2317", "EPSG:24819", "EPSG:24820"};

/// Map systems lie in parts of their datum's area, where imports take other operations.
TEST(CatalogueImports, OfMapSystemsFindANameOfTheirDatum) {
    const auto names = names_of_systems();
    int count = 0, named = 0;
    PROJ_CRS_INFO** const list =
        proj_get_crs_info_list_from_database(PJ_DEFAULT_CTX, "EPSG", nullptr, &count);
    for (int i = 0; i < count; ++i) {
        if (list[i]->deprecated || list[i]->type != PJ_TYPE_PROJECTED_CRS) continue;
        const std::string system = std::string("EPSG:") + list[i]->code;
        const auto crs = epsg(list[i]->code, PJ_CATEGORY_CRS);
        const proj_object base(proj_crs_get_geodetic_crs(PJ_DEFAULT_CTX, crs.get()));
        const auto own = names.find(std::string("EPSG:") + proj_get_id_code(base.get(), 0));
        if (own == names.end() || taken_for_others.contains(own->first) || by_another_method.contains(system))
            continue;
        const auto& model = imported(system);
        if (model.params().text().empty() || oxhost::published_shifts(crs.get()).empty()) continue;
        EXPECT_TRUE(own->second.contains(model.datum()->name))
            << system << ' ' << list[i]->name << ": " << model.datum()->name << ", " << model.params().text();
        ++named;
    }
    proj_crs_info_list_destroy(list);
    EXPECT_GT(named, 1000);
}

/// Systems of zones whose import takes an operation for a part of the zone, or finds none published there.
const std::map<std::string, std::string> no_zones{
    {"EPSG:2938", "Pulkovo 1942 (EPSG:1809, Azerbaijan coast)"},
    {"EPSG:2939", "Pulkovo 1942 (EPSG:1303, Kazakhstan, Caspian)"},
    {"EPSG:28402", "<Custom>"},  // zones 2 and 3 lie west of every published area
    {"EPSG:28403", "<Custom>"},
    {"EPSG:5520", "<Custom>"},  // the North Sea
};

TEST(CatalogueImports, OfZonesAreZones) {
    names_by_system families;
    for (const auto& record : built().sources.zonal)
        if (record.source.starts_with("EPSG:"))
            families[record.source].insert(record.text("PRJ_NAME") + ' ' + record.text("ZONE_N"));
    std::map<std::string, std::string> strangers;
    for (const auto& [system, names] : families) {
        const auto& model = imported(system);
        const auto* zone = model.type() == ox::dialog::projection_type::zonal ? model.current() : nullptr;
        if (!zone || !names.contains(zone->name + ' ' + zone->zone_n.text))
            strangers[system] = model.datum()->name;
    }
    EXPECT_EQ(strangers, no_zones);
}

}  // namespace
}  // namespace catalogue_test
