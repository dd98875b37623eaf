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
    std::vector<std::vector<double>> given, expected;
};

class Longitudes : public testing::TestWithParam<gathered_case> {};

TEST_P(Longitudes, AreCutWhereTheCircleIsEmpty) {
    std::vector<polyline> lines;
    std::vector<polyline*> all;
    for (const auto& longitudes : GetParam().given) {
        polyline& line = lines.emplace_back();
        for (const double x : longitudes) line.push_back({x, 65});
    }
    for (polyline& each : lines) all.push_back(&each);
    gather(all);
    std::vector<std::vector<double>> found;
    for (const polyline& line : lines) {
        auto& longitudes = found.emplace_back();
        for (const point& place : line) longitudes.push_back(place.x);
    }
    EXPECT_EQ(found, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Longitudes,
    testing::Values(
        gathered_case{"Nothing", {}, {}}, gathered_case{"EmptyLine", {{}, {5}}, {{}, {5}}},
        gathered_case{"Usual", {{30, 40}, {-5, 2}, {100}}, {{30, 40}, {-5, 2}, {100}}},
        gathered_case{"LineJumps", {{179, -179, -178}}, {{179, 181, 182}}},
        gathered_case{"LineJumpsBack", {{-179, 179}}, {{181, 179}}},
        gathered_case{"LinesOnBothSides", {{177, 178}, {-178, -177}}, {{177, 178}, {182, 183}}},
        gathered_case{
            "BeforeAndAfterOfOneLine", {{179.999, 180.5}, {-180, -179.5}}, {{179.999, 180.5}, {180, 180.5}}},
        gathered_case{"TouchesTheDateLine", {{170, 180}, {30, 31}}, {{170, 180}, {30, 31}}},
        gathered_case{"CountedFromZero", {{350, 355}, {5, 10}}, {{-10, -5}, {5, 10}}},
        gathered_case{"LineOverOthers",
                      {{-170, -40, 100}, {-100, -90}, {110, 120}},
                      {{-170, -40, 100}, {-100, -90}, {110, 120}}},
        gathered_case{"AllAround", {{-170, -60, 60, 170}, {175, -175}}, {{-170, -60, 60, 170}, {175, 185}}}),
    case_name);

}  // namespace
}  // namespace oxhost::map
