#include <gtest/gtest.h>

#include <algorithm>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost_test;

struct known_line {
    const char* name;
    const char* code;
    oxhost::point begin;  ///< as cs2cs gives it for a place in the country
    const char* near;     ///< some 100 km from there
};

/// The true system is among the first five; the project has nothing else to go by.
TEST_CASES(Guess, FindsTheTrueSystem, known_line,
           {"UtmNorth", "EPSG:32633", {534325.167, 5761156.236}, "15.5,52.9"},
           {"GaussKruger6", "EPSG:28407", {7412206.436, 6181717.191}, "36.2,55.75"},
           {"GaussKruger3", "EPSG:2541", {25500056.017, 6654116.812}, "76,59.4"},
           {"Lambert93", "EPSG:2154", {652310.718, 6862414.637}, "2.35,49.76"},
           {"BritishGrid", "EPSG:27700", {433653.297, 344858.883}, "-1.5,53.9"},
           {"NewZealand", "EPSG:2193", {1812473.583, 5535945.649}, "176.5,-40.9"},
           {"Swiss", "EPSG:2056", {2680120.182, 1250450.279}, "9.5,46.8"},
           {"Sirgas", "EPSG:31983", {336625.132, 7400218.86}, "-46.6,-22.6"},
           {"Sad69", "EPSG:29193", {336670.2, 7400264.575}, "-45.6,-24.1"},
           {"CaliforniaFeet", "EPSG:2227", {6069861.227, 2081815.035}, "-122.2,38.6"},
           {"AustralianMap", "EPSG:28355", {323920.551, 5814491.019}, "146,-38.4"},
           {"JapanPlane", "EPSG:2451", {-12065.989, -33275.346}, "139.7,36.6"},
           {"Rt90", "EPSG:3021", {1625036.362, 6577515.058}, "18,60.2"},
           {"Sweref", "EPSG:3006", {555776.267, 6651832.735}, "17,59.4"},
           {"Pulkovo1995", "EPSG:20010", {10440958.223, 6431791.84}, "57,57.4"},
           {"Geographic", "EPSG:4326", {100, 20}, "101,19.4"}) {
    const sandbox box;
    const double step = c.begin.x < 180 && c.begin.x > 0 && c.begin.y < 90 ? 0.1 : 5000;
    box.make_project({{"line", "", {c.begin, {c.begin.x + step, c.begin.y + step}}}});
    const auto run =
        box.oxhost({"guess", "p.gpkg", "--scene", "line", std::string("--near=") + c.near, "--json"});
    ASSERT_EQ(run.code, 0) << run.error;
    const auto guesses = nlohmann::json::parse(run.out).at(0).at("guesses");
    EXPECT_EQ(guesses.size(), 5u);
    const auto found = std::ranges::find(guesses, c.code, [](const auto& each) { return each["code"]; });
    ASSERT_NE(found, guesses.end()) << run.out;
    EXPECT_LT((*found)["distance_m"], 160e3);
}

/// Zone 10, whose meridian is 57 degrees, on the datum of GOST R 51794-2008.
TEST(Guess, GoesByTheOtherLinesOfTheProject) {
    const sandbox box;
    const std::string zone10 =
        "+proj=tmerc +lat_0=0 +lon_0=57 +k=1 +x_0=10500000 +y_0=0 +ellps=krass "
        "+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +units=m +no_defs";
    box.make_project({{"known", zone10, {{10440000, 6430000}, {10450000, 6430000}}},
                      {"unknown", "", {{10490000, 6431791}, {10500000, 6431791}}},
                      {"nowhere", "", {{1e12, 1e12}, {2e12, 1e12}}}});
    const auto run = box.oxhost({"guess", "p.gpkg", "--scene", "unknown", "--json"});
    ASSERT_EQ(run.code, 0) << run.error;
    const auto best = nlohmann::json::parse(run.out).at(0).at("guesses").at(0);
    EXPECT_EQ(best["code"], "EPSG:28410");
    EXPECT_NEAR(best["longitude"], 57, 0.01);
    EXPECT_EQ(box.oxhost({"guess", "p.gpkg", "--scene", "nowhere"}).code, 1);
}

}  // namespace
