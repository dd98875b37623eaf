#include "map/regions.h"

#include <random>

#include "testing/case_name.h"

namespace oxhost::map {
namespace {

using groups = std::vector<std::vector<std::size_t>>;

struct grouped_case {
    const char* name;
    std::vector<geographic_extent> lines;
    std::size_t most;
    groups expected;
};

class Regions : public testing::TestWithParam<grouped_case> {};

TEST_P(Regions, HoldTheLinesThatLieTogether) {
    const grouped_case& given = GetParam();
    groups found;
    for (const region& each : find_regions(given.lines, given.most)) found.push_back(each.lines);
    EXPECT_EQ(found, given.expected);
}

/// A line of a tenth of a degree.
geographic_extent at(double x, double y) { return {x, y, x + 0.1, y + 0.1}; }

INSTANTIATE_TEST_SUITE_P(
    Cases, Regions,
    testing::Values(
        grouped_case{"Nothing", {}, 6, {}},
        grouped_case{"EmptyBelongsNowhere", {{}, at(50, 50), {}}, 6, {{1}}},
        grouped_case{"Near", {at(50, 50), at(51.5, 50.5), at(50.5, 51.5)}, 6, {{0, 1, 2}}},
        grouped_case{"NearByTheCorner", {at(50.9, 50.9), at(51.1, 51.1), at(49.5, 52.5)}, 6, {{0, 1, 2}}},
        grouped_case{"FarFromWestToEast", {at(80, 60), at(40, 50), at(-5, 45)}, 6, {{2}, {1}, {0}}},
        grouped_case{
            "NearestAreJoinedFirst", {at(0, 50), at(10, 50), at(14, 50), at(40, 50)}, 3, {{0}, {1, 2}, {3}}},
        grouped_case{"OneFrame", {at(0, 50), at(10, 50), at(40, 50)}, 1, {{0, 1, 2}}},
        grouped_case{"LinkedByALongLine", {at(0, 50), at(20, 50), {0.5, 50, 20, 50.5}}, 6, {{0, 1, 2}}},
        grouped_case{"BoxOverAnother", {{0, 40, 30, 40.1}, {0, 40, 0.1, 70}, at(15, 55)}, 6, {{0, 1, 2}}},
        grouped_case{"OverlappingJoinBeforeNear",
                     {at(0, 50), at(5, 50), {60, 40, 90, 40.1}, {60, 40, 60.1, 70}, at(75, 55)},
                     3,
                     {{0}, {1}, {2, 3, 4}}},
        grouped_case{"AcrossZero", {at(-0.3, -0.3), at(0.3, 0.3)}, 6, {{0, 1}}}),
    case_name);

TEST(Regions, OfManyLinesAreFewAndApart) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> x(-180, 180), y(-80, 80), size(0, 2);
    for (const std::size_t count : {10U, 100U, 3000U}) {
        std::vector<geographic_extent> lines;
        for (std::size_t i = 0; i < count; ++i) {
            const double west = x(random), south = y(random);
            lines.push_back({west, south, west + size(random), south + size(random)});
        }
        const auto regions = find_regions(lines, 6);
        EXPECT_LE(regions.size(), 6U);
        std::vector<int> shown(count);
        for (std::size_t r = 0; r < regions.size(); ++r) {
            const geographic_extent& box = regions[r].bounds;
            for (const std::size_t i : regions[r].lines) {
                ++shown[i];
                EXPECT_TRUE(lines[i].min_x >= box.min_x && lines[i].max_x <= box.max_x &&
                            lines[i].min_y >= box.min_y && lines[i].max_y <= box.max_y);
            }
            for (std::size_t s = 0; s < r; ++s) {
                const geographic_extent& other = regions[s].bounds;
                EXPECT_TRUE(box.min_x > other.max_x || other.min_x > box.max_x || box.min_y > other.max_y ||
                            other.min_y > box.max_y);
            }
        }
        EXPECT_EQ(shown, std::vector<int>(count, 1));
    }
}

// ---- longitudes, before lines are grouped

struct gathered_case {
    const char* name;
    std::vector<std::vector<std::vector<double>>> given, expected;  ///< bodies of lines of longitudes
};

TEST_CASES(Longitudes, AreCutWhereTheCircleIsEmpty, gathered_case, {"Nothing", {}, {}},
           {"EmptyLine", {{{}}, {{5}}}, {{{}}, {{5}}}},
           {"Usual", {{{30, 40}}, {{-5, 2}}, {{100}}}, {{{30, 40}}, {{-5, 2}}, {{100}}}},
           {"LineJumps", {{{179, -179, -178}}}, {{{179, 181, 182}}}},
           {"LineJumpsBack", {{{-179, 179}}}, {{{181, 179}}}},
           {"LinesOnBothSides", {{{177, 178}}, {{-178, -177}}}, {{{177, 178}}, {{182, 183}}}},
           {"BeforeAndAfter", {{{179.75, 180.5}, {-180, -179.5}}}, {{{179.75, 180.5}, {180, 180.5}}}},
           {"BeforeAndAfterTurnedAlike",
            {{{0, 179.75, 0}, {0, -179.75, 0}}, {{90}}, {{-60}}},
            {{{0, 179.75, 0}, {0, 180.25, 0}}, {{90}}, {{-60}}}},
           {"OneMoreVertexAfter", {{{179, -179}, {-181, 180, -179}}}, {{{179, 181}, {179, 180, 181}}}},
           {"TouchesTheDateLine", {{{170, 180}}, {{30, 31}}}, {{{170, 180}}, {{30, 31}}}},
           {"CountedFromZero", {{{350, 355}}, {{5, 10}}}, {{{-10, -5}}, {{5, 10}}}},
           {"LineOverOthers",
            {{{-170, -40, 100}}, {{-100, -90}}, {{110, 120}}},
            {{{-170, -40, 100}}, {{-100, -90}}, {{110, 120}}}},
           {"AllAround", {{{-170, -60, 60, 170}}, {{175, -175}}}, {{{-170, -60, 60, 170}}, {{175, 185}}}}) {
    std::vector<std::vector<polyline>> lines;
    for (const auto& body_given : c.given) {
        auto& made = lines.emplace_back();
        for (const auto& longitudes : body_given) {
            polyline& line = made.emplace_back();
            for (const double x : longitudes) line.push_back({x, 65});
        }
    }
    std::vector<body> bodies;
    for (auto& each : lines) {
        body& together = bodies.emplace_back();
        for (polyline& line : each) together.push_back(&line);
    }
    gather(bodies);
    std::vector<std::vector<std::vector<double>>> found;
    for (const auto& each : lines) {
        auto& longitudes = found.emplace_back();
        for (const polyline& line : each) {
            longitudes.emplace_back();
            for (const point& place : line) longitudes.back().push_back(place.x);
        }
    }
    EXPECT_EQ(found, c.expected);
}

}  // namespace
}  // namespace oxhost::map
