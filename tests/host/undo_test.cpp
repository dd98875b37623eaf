#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <sstream>

#include "oxhost_run.h"
#include "project/project.h"
#include "project/sqlite.h"

namespace {

using namespace oxhost_test;

/// What other programs see.
std::string seen_by_gdal(const sandbox& box, const std::string& arguments) {
    EXPECT_EQ(std::system(("cd " + box.path("").string() + " && " + arguments + " >seen.txt 2>&1").c_str()),
              0);
    return box.bytes("seen.txt");
}

/// Layers as ogrinfo numbers them.
std::string layers(const sandbox& box) {
    std::string names;
    for (std::istringstream lines(seen_by_gdal(box, "ogrinfo -q p.gpkg")); lines.good();) {
        std::string line;
        std::getline(lines, line);
        if (const auto name = line.find(": "); name != line.npos)
            names += line.substr(name + 2, line.find(" (") - name - 2) + ";";
    }
    return names;
}

TEST(Undo, TakesRunsBackAndLayersFollow) {
    const sandbox box;
    box.make_project({{"first", gauss_kruger_10, {{10400000, 6200000}, {10450000, 6250000}}},
                      {"second", gauss_kruger_10, {{10410000, 6200000}, {10450000, 6250000}}},
                      {"third", utm40, {{400000, 6200000}, {410000, 6200000}}},
                      {"nowhere", "", {{1, 2}, {3, 4}}}});
    const auto before = box.stored_lines();
    const auto texts = box.listed("proj4");
    EXPECT_EQ(layers(box), "scenes;scenes 1;scenes EPSG 32640;");
    // cs2cs -f %.6f to +proj=longlat +datum=WGS84, PROJ 9.1.1
    const std::string placed = seen_by_gdal(
        box, "ogr2ogr -f CSV /vsistdout/ p.gpkg 'scenes EPSG 32640' -t_srs EPSG:4326 -lco GEOMETRY=AS_WKT");
    EXPECT_NE(placed.find("(55.39921"), std::string::npos) << placed;

    ASSERT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", "EPSG:32640", "--scene", "0", "1"}).code, 0);
    EXPECT_EQ(layers(box), "scenes;scenes EPSG 32640;");
    const auto after = box.listed("proj4");
    ASSERT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", wgs84, "--scene", "0", "1", "2"}).code, 0);
    EXPECT_EQ(layers(box), "scenes;scenes EPSG 4326;");
    EXPECT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all", "--dry-run", "--yes"}).code, 0);

    seen_by_gdal(box, "ogrinfo -q p.gpkg -sql \"UPDATE scenes SET proj4='edited' WHERE fid=2\"");
    const auto partial = box.oxhost({"undo", "p.gpkg"});
    EXPECT_EQ(partial.code, 1);
    EXPECT_NE(partial.error.find("scene 1 \"second\"; --force"), std::string::npos) << partial.error;
    EXPECT_EQ(box.listed("proj4"), (std::vector<std::string>{after[0], "edited", after[2], ""}));
    EXPECT_EQ(box.oxhost({"undo", "p.gpkg", "--force"}).code, 0);
    EXPECT_EQ(box.listed("proj4"), after);
    EXPECT_EQ(box.oxhost({"undo", "p.gpkg"}).code, 0);
    EXPECT_EQ(box.listed("proj4"), texts);
    EXPECT_EQ(box.stored_lines(), before);
    EXPECT_EQ(layers(box), "scenes;scenes 1;scenes EPSG 32640;");
    EXPECT_EQ(box.oxhost({"undo", "p.gpkg"}).code, 2);
}

TEST(Undo, SurvivesKills) {
    const sandbox box;
    std::vector<source_line> lines;
    for (int i = 0; i < 3000; ++i)
        lines.push_back(
            {std::to_string(i), gauss_kruger_10, {{10400000.0 + i, 6200000}, {10450000, 6250000}}});
    box.make_project(lines);
    const std::vector<std::string> run{"reproject", "p.gpkg", "--to", utm40, "--all", "--quiet"};
    const std::vector<std::string> undo{"undo", "p.gpkg", "--quiet"};
    const auto seconds = [&](const std::vector<std::string>& command) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(box.oxhost(command).code, 0);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    const double run_takes = seconds(run), undo_takes = seconds(undo);
    const auto killed = [&](const std::vector<std::string>& command, double after) {
        box.oxhost(command, "en", "timeout -s KILL " + std::to_string(after) + " env");
    };
    const auto expect_whole_scenes = [&] {  // answers how many are new
        std::size_t changed = 0;
        std::unique_ptr<oxhost::project> opened;
        try {
            opened = oxhost::project::open(box.path("p.gpkg"), oxhost::open_mode::read_only);
        } catch (const oxhost::project_error&) {  // killed while it opened or closed: only a writer can mend
            opened = oxhost::project::open(box.path("p.gpkg"), oxhost::open_mode::read_write);
        }
        for (const oxhost::scene& each : opened->scenes()) {
            const bool is_new = each.proj4 == utm40;
            changed += is_new;
            EXPECT_EQ(opened->read_line(each).xy.front().x < 1e6, is_new) << each.index;
        }
        return changed;
    };
    constexpr int rounds = 15;  // of two kills
    for (int i = 1; i <= rounds; ++i) {
        SCOPED_TRACE(i);
        killed(run, run_takes * i / rounds);
        const std::size_t changed = expect_whole_scenes();
        killed(undo, undo_takes * i / rounds);
        const std::size_t left = expect_whole_scenes();
        EXPECT_TRUE(left == 0 || left == changed) << left << " of " << changed;
        EXPECT_EQ(box.oxhost(undo).code, left ? 0 : 2);
        EXPECT_EQ(expect_whole_scenes(), 0U);
        oxhost::sqlite::connection db(box.path("p.gpkg"), SQLITE_OPEN_READONLY);
        EXPECT_EQ(db.ask("PRAGMA integrity_check"), "ok");
        EXPECT_EQ(db.ask("SELECT count(*) FROM ox_undo"), "0");
    }
}

}  // namespace
