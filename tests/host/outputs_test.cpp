// What commands write never costs what is there.

#include <gtest/gtest.h>

#include <map>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace oxhost_test {
namespace {

struct output_case {
    const char* name;
    std::vector<std::string> command;
    const char* refused_for;  ///< the file that the error line names
};

std::vector<std::string> dry(std::vector<std::string> outputs) {
    std::vector<std::string> command{"reproject", "p.gpkg", "--to", utm40, "--all", "--dry-run"};
    command.insert(command.end(), outputs.begin(), outputs.end());
    return command;
}

std::map<std::string, std::string> contents(const sandbox& box) {
    std::map<std::string, std::string> all;
    for (const std::string& each : box.files()) all[each] = box.bytes(each);
    return all;
}

/// q.gpkg is another project, to which link.json, hard.svg and z.dbf lead; all of old.* belongs to others.
TEST_CASES(Outputs, KeepWhatIsThere, output_case,
           {"Export", {"export", "p.gpkg", "old.geojson"}, "old.geojson"},
           {"CompanionOfShapefile", {"export", "p.gpkg", "old.shp"}, "old.prj"},
           {"Report", dry({"--report", "old.geojson"}), "old.geojson"},
           {"Map", dry({"--map", "old.geojson"}), "old.geojson"},
           {"Save", {"project", utm40, "--save", "old.prj"}, "old.prj"},
           {"DanglingLink", {"export", "p.gpkg", "dangling.geojson"}, "dangling.geojson"},
           {"OtherProject", {"export", "p.gpkg", "q.gpkg", "--overwrite"}, "q.gpkg"},
           {"LogOfProject", dry({"--report", "q.gpkg-wal", "--overwrite"}), "q.gpkg-wal"},
           {"SymbolicLink", dry({"--report", "link.json", "--overwrite"}), "link.json"},
           {"HardLink", dry({"--map", "hard.svg", "--overwrite"}), "hard.svg"},
           {"HardLinkAsCompanion", {"export", "p.gpkg", "z.shp", "--overwrite"}, "z.dbf"},
           {"SaveOverProject", {"project", utm40, "--overwrite", "--save", "q.gpkg"}, "q.gpkg"}) {
    const sandbox box;
    box.make_project({{"A", wgs84, {{57, 55}, {57.1, 55.1}}}});
    fs::copy(box.path("p.gpkg"), box.path("q.gpkg"));
    fs::create_symlink("q.gpkg", box.path("link.json"));
    fs::create_symlink("nowhere", box.path("dangling.geojson"));
    for (const char* link : {"hard.svg", "z.dbf"}) fs::create_hard_link(box.path("q.gpkg"), box.path(link));
    for (const char* old : {"old.geojson", "old.prj"}) box.write(old, "kept");
    const auto before = contents(box);
    const auto run = box.oxhost(c.command);
    EXPECT_EQ(run.code, 2) << run.error;
    EXPECT_TRUE(run.error.starts_with(std::string("oxhost: ") + c.refused_for + ": ")) << run.error;
    EXPECT_EQ(contents(box), before);
}

TEST(Outputs, StreamsAndLinksAreWrittenInto) {
    const sandbox box;
    box.make_project({{"A", wgs84, {{57, 55}, {57.1, 55.1}}}});
    const auto run = box.oxhost({"export", "p.gpkg", "/dev/stdout"});
    EXPECT_EQ(nlohmann::json::parse(run.out).at("features").size(), 1U) << run.error;
    box.write("real.geojson", "old");
    fs::create_symlink("real.geojson", box.path("link.geojson"));
    EXPECT_EQ(box.oxhost({"export", "p.gpkg", "link.geojson", "--overwrite"}).code, 0);
    EXPECT_TRUE(fs::is_symlink(box.path("link.geojson")));
    EXPECT_EQ(box.json("real.geojson").at("features").size(), 1U);
}

}  // namespace
}  // namespace oxhost_test
