#include <gtest/gtest.h>

#include <cmath>

#include "oxhost_run.h"
#include "project/project.h"
#include "testing/case_name.h"

// Expected coordinates by cs2cs -f %.6f, distances by geod -F %.4f -I, PROJ 9.1.1.
namespace {

using namespace oxhost_test;

constexpr auto utm37 = "+proj=utm +zone=37 +datum=WGS84 +units=m +no_defs";
constexpr auto rpoly = "+proj=rpoly +datum=WGS84 +no_defs";  // PROJ has no inverse of it
constexpr auto psad56 = "+proj=longlat +ellps=intl +towgs84=-288,175,-376 +no_defs";
const oxhost::polyline urals{{57, 55}, {57.5, 55.5}};
const oxhost::polyline far_west{{-22, 2}, {-22.360466285794047, 1.8927750003683457}, {-22.1, 1.9}};

struct return_case {
    const char* name;
    source_line scene;
    std::string target;
    std::vector<std::string> options;
    int code;
    const char* told;             ///< on the error output
    std::optional<double> error;  ///< metres, in the report
};

class Return : public testing::TestWithParam<return_case> {};

TEST_P(Return, IsAskedOfEveryLine) {
    const return_case& of = GetParam();
    const sandbox box;
    box.make_project({of.scene});
    std::vector<std::string> command{"reproject", "p.gpkg", "--to", of.target, "--all", "--report", "r.json"};
    command.insert(command.end(), of.options.begin(), of.options.end());
    const auto run = box.oxhost(command);
    EXPECT_EQ(run.code, of.code);
    EXPECT_NE(run.error.find(of.told), std::string::npos) << run.error;
    EXPECT_EQ(box.listed("proj4").front(), of.code == 0 ? of.target : of.scene.proj4);
    if (!fs::exists(box.path("r.json"))) return;
    const auto error = box.json("r.json").at("scenes").at(0).at("return_error_m");
    ASSERT_EQ(error.is_number(), of.error.has_value());
    EXPECT_NEAR(error.is_number() ? error.get<double>() : 0, of.error.value_or(0), 1e-4);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Return,
    testing::Values(
        return_case{"Near", {"a", wgs84, urals}, utm40, {}, 0, "", 0},
        return_case{"FarFromTheMeridian",
                    {"a", wgs84, far_west},
                    utm40,
                    {},
                    1,
                    "scene 0 \"a\": vertex 1 (-22.360466285794047, 1.8927750003683457): comes back from the "
                    "target projection 6.375 m from its place",
                    6.3749},
        return_case{"FarAndAllowed",
                    {"a", wgs84, far_west},
                    utm40,
                    {"--return-tolerance", "7"},
                    0,
                    "1 of 1 lines is stretched by more than 1 %; the worst, scene 0 \"a\", by ",
                    6.3749},
        // there and back by cs2cs 1.7 cm apart, since the shift takes heights for nothing: no fault of the
        // line
        return_case{"ShiftOfHundredsOfMetres",
                    {"a", psad56, {{-73, -38}, {-72, -38}}},
                    "+proj=utm +zone=19 +south +datum=WGS84 +units=m +no_defs",
                    {},
                    0,
                    "",
                    0},
        return_case{"NoInverse", {"a", wgs84, urals}, rpoly, {}, 2, "has no inverse", {}},
        return_case{"NoInverseOneWay", {"a", wgs84, urals}, rpoly, {"--one-way"}, 0, "", {}}),
    case_name);

TEST(Distorted, IsToldOnceAndMeasuredPerScene) {
    const sandbox box;
    box.make_project({{"near", wgs84, {{39, 55}, {39.1, 55.1}}},
                      {"far", wgs84, {{63, 56}, {63.1, 56.1}}},
                      {"farther", "+proj=longlat +ellps=GRS80 +no_defs", {{65, 56}, {65.1, 56.1}}},
                      {"long", wgs84, {{30, 60}, {48, 60}}}});
    const std::vector<std::string> command{"reproject", "p.gpkg", "--to",     utm37,    "--scene",  "0",
                                           "1",         "3",      "--report", "r.json", "--dry-run"};
    const auto run = box.oxhost(command);
    ASSERT_EQ(run.code, 0) << run.error;
    EXPECT_TRUE(run.error.starts_with(
        "warning: 1 of 3 lines is stretched by more than 1 %; the worst, scene 1 \"far\", by 2.7 %\n"))
        << run.error;
    EXPECT_EQ(std::ranges::count(run.error, '\n'), 2) << "one operation serves all three";
    auto quiet = command;
    quiet.insert(quiet.end(), {"--quiet", "--overwrite"});
    EXPECT_EQ(box.oxhost(quiet).error, "");
    EXPECT_NE(
        box.oxhost({"reproject", "p.gpkg", "--to", utm37, "--all", "--dry-run"})
            .error.find("2 of 4 lines are stretched by more than 1 %; the worst, scene 2 \"farther\", by "),
        std::string::npos);

    const auto scenes = box.json("r.json").at("scenes");
    const double drawn = std::hypot(1981358.530157 - 1979328.269798, 6482128.832128 - 6469188.611641);
    EXPECT_NEAR(scenes[1].at("planar_length_after_m"), drawn, 1e-5);
    EXPECT_NEAR(scenes[1].at("length_after_m"), 12759.3129, 1e-4);
    EXPECT_NEAR(scenes[1].at("scale_error_percent"), 100 * (drawn / 12759.3129 - 1), 1e-6);
    EXPECT_TRUE(scenes[1].at("planar_length_before_m").is_null()) << "degrees have no length";
    EXPECT_NEAR(scenes[2].at("segment_deviation_m"), 6685590.893532 - 6651411.190363, 1e-5);
    EXPECT_LT(scenes[0].at("segment_deviation_m"), 5);
}

TEST(Densify, FollowsTheSegmentAndItsValues) {
    const sandbox box;
    const auto made = oxhost::project::create(box.path("p.gpkg"));
    made->append(std::vector<oxhost::new_scene>{
        {"a", true, wgs84, oxhost::section_line({{30, 60}, {48, 60}}, {100, 300}, {0, 8})}});
    made->close();
    const auto run = box.oxhost(
        {"reproject", "p.gpkg", "--to", utm37, "--all", "--densify", "1000", "--report", "r.json"});
    ASSERT_EQ(run.code, 0) << run.error;
    const auto opened = oxhost::project::open(box.path("p.gpkg"), oxhost::open_mode::read_only);
    const oxhost::section_line line = opened->read_line(*opened->at(0));
    // a bow of 34 km is 2.1 km at a quarter and 0.5 km at an eighth of the length
    const oxhost::section_line eighths({{-961.404521, 6685590.893532},
                                        {123937.259986, 6670628.715643},
                                        {249129.548800, 6659949.573583},
                                        {374516.337173, 6653545.373068},
                                        {500000.000000, 6651411.190363},
                                        {625483.662827, 6653545.373068},
                                        {750870.451200, 6659949.573583},
                                        {876062.740014, 6670628.715643},
                                        {1000961.404521, 6685590.893532}},
                                       {100, 125, 150, 175, 200, 225, 250, 275, 300},
                                       {0, 1, 2, 3, 4, 5, 6, 7, 8});
    ASSERT_EQ(line.xy.size(), 9U);
    EXPECT_EQ(line.z, eighths.z);
    EXPECT_EQ(line.m, eighths.m);
    for (std::size_t i = 0; i < line.xy.size(); ++i) {
        EXPECT_NEAR(line.xy[i].x, eighths.xy[i].x, 1e-5) << i;
        EXPECT_NEAR(line.xy[i].y, eighths.xy[i].y, 1e-5) << i;
    }
    EXPECT_NE(run.out.find("1 reprojected; 7 vertices added"), std::string::npos) << run.out;
    const auto scene = box.json("r.json").at("scenes").at(0);
    EXPECT_EQ(scene.at("added_vertices"), 7);
    EXPECT_LT(scene.at("segment_deviation_m"), 1000);
    EXPECT_LT(scene.at("largest_ground_shift_m"), 1e-3);
}

/// `echo "320000 5812000" | cs2cs -f %.4f EPSG:28355 EPSG:7855` gives 320000.4906 5812001.4721.
TEST(Operations, NameWhatTextsCannotExpress) {
    const sandbox box;
    box.write("au.geojson",
              R"({"type": "FeatureCollection", "crs": {"type": "name", "properties": {"name": "EPSG:28355"}},
"features": [{"type": "Feature", "properties": {"name": "a"},
"geometry": {"type": "LineString", "coordinates": [[320000, 5812000], [330000, 5820000]]}}]})");
    ASSERT_EQ(box.oxhost({"import", "p.gpkg", "au.geojson"}).code, 0);
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", "EPSG:7855", "--all"});
    EXPECT_NE(run.error.find("operation: EPSG:28355, scenes: 1: "), std::string::npos) << run.error;
    EXPECT_NE(run.error.find("GDA94 to GDA2020 (1)"), std::string::npos) << run.error;
    EXPECT_NE(run.error.find("off by 1.55 m\n"), std::string::npos) << run.error;
}

}  // namespace
