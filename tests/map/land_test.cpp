#include "map/land.h"

#include <regex>

#include "testing/case_name.h"

namespace oxhost::map {
namespace {

constexpr rectangle place{44, 64, 600, 400};

struct land_case {
    const char* name;
    geographic_extent shown;
    std::vector<point> on_land, at_sea;
};

std::string path_of(const std::string& elements, const std::string& look) {
    const std::string start = "class=\"" + look + "\" d=\"";
    const auto at = elements.find(start);
    if (at == elements.npos) return {};
    const auto first = at + start.size();
    return elements.substr(first, elements.find('"', first) - first);
}

std::vector<polyline> rings_in(const std::string& path) {
    static const std::regex step(R"re(([ML])([-\d.]+) ([-\d.]+))re");
    std::vector<polyline> rings;
    for (std::sregex_iterator at(path.begin(), path.end(), step), end; at != end; ++at) {
        if ((*at)[1] == "M") rings.emplace_back();
        rings.back().push_back({std::stod((*at)[2]), std::stod((*at)[3])});
    }
    return rings;
}

bool inside(const std::vector<polyline>& rings, const point& p) {
    bool odd = false;
    for (const polyline& ring : rings)
        for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
            if ((ring[i].y > p.y) != (ring[j].y > p.y) &&
                p.x < ring[i].x + (ring[j].x - ring[i].x) * (p.y - ring[i].y) / (ring[j].y - ring[i].y))
                odd = !odd;
    return odd;
}

// Capitals and seas as any atlas has them.
TEST_CASES(
    Land, LiesWhereItIsAndInTheFrame, land_case,
    {"World", {-175, -60, 175, 80}, {{37.6, 55.75}, {-47.9, -15.8}, {133.9, -23.7}}, {{-30, 30}, {51, 41}}},
    {"Europe", {-10, 36, 30, 60}, {{2.35, 48.86}, {12.5, 41.95}, {-3.7, 40.4}}, {{3, 56}, {5, 40}}},
    {"DateLine", {170, 60, 200, 72}, {{177.5, 66}, {182, 67}}, {{175, 71}, {190, 60.5}}},
    {"WestOfTheDateLine", {-190, 60, -160, 72}, {{-182.5, 66}, {-178, 67}}, {{-170, 60.5}}},
    {"AllLand", {37, 55, 38, 56}, {{37.6, 55.75}}, {}}, {"AllSea", {-31, 29, -29, 31}, {}, {{-30, 30}}}) {
    const frame shown(place, c.shown);
    const std::string elements = land_in(shown);
    const auto rings = rings_in(path_of(elements, "land"));
    const rectangle edges = place.grown(0.1);
    for (const polyline& ring : rings)
        for (const point& at : ring) EXPECT_TRUE(edges.contains({at.x, at.y, 0, 0})) << at.x << ' ' << at.y;
    for (const point& at : c.on_land) EXPECT_TRUE(inside(rings, shown.to_picture(at))) << at.x << ' ' << at.y;
    for (const point& at : c.at_sea) EXPECT_FALSE(inside(rings, shown.to_picture(at))) << at.x << ' ' << at.y;
    // No coast along the date line.
    const double line = shown.to_picture(point{c.shown.min_x < -180 ? -180.0 : 180.0, 0}).x;
    for (const polyline& coast : rings_in(path_of(elements, "coast")))
        for (std::size_t i = 1; i < coast.size(); ++i)
            EXPECT_FALSE(std::abs(coast[i].x - line) < 0.06 && std::abs(coast[i - 1].x - line) < 0.06 &&
                         std::abs(coast[i].y - coast[i - 1].y) > 3);
}

}  // namespace
}  // namespace oxhost::map
