#include "map/frame.h"

#include <cmath>
#include <numbers>
#include <regex>
#include <set>

#include "testing/case_name.h"

namespace oxhost::map {
namespace {

struct shown_case {
    const char* name;
    rectangle place;
    geographic_extent content;
    std::set<std::string> labels;  ///< some of the degrees along the edges
};

/// Metres on the mean sphere along a parallel; the map is drawn for its middle latitude.
double metres_east(double degrees, double latitude) {
    return degrees * std::numbers::pi / 180 * 6371008.8 * std::cos(latitude * std::numbers::pi / 180);
}

std::set<std::string> labels_in(const std::string& drawn) {
    static const std::regex label(R"re(class="degrees"[^>]*>([^<]*)<)re");
    std::set<std::string> found;
    for (std::sregex_iterator at(drawn.begin(), drawn.end(), label), end; at != end; ++at)
        found.insert((*at)[1]);
    return found;
}

class Frame : public testing::TestWithParam<shown_case> {};

TEST_P(Frame, ShowsItsContentInScale) {
    const auto& [name, place, content, labels] = GetParam();
    const frame shown(place, content);
    const point middle = content.middle();
    EXPECT_TRUE(place.contains(shown.to_picture(content)));
    EXPECT_NEAR(shown.to_picture(middle).x, place.x + place.width / 2, 1e-6);
    EXPECT_NEAR(shown.to_picture(middle).y, place.y + place.height / 2, 1e-6);
    EXPECT_LT(shown.to_picture(point{middle.x, content.max_y}).y,
              shown.to_picture(point{middle.x, content.min_y}).y + 1e-9)
        << "north is up";

    const double metres_a_pixel_east = metres_east(shown.shown().width(), middle.y) / place.width;
    const double metres_a_pixel_north = metres_east(shown.shown().height(), 0) / place.height;
    EXPECT_NEAR(metres_a_pixel_east / metres_a_pixel_north, 1, 1e-9);

    // one of the two directions is filled but for the margin
    const double share =
        std::max(content.width() / shown.shown().width(), content.height() / shown.shown().height());
    EXPECT_TRUE(share > 0.78 || content.width() < 0.1) << share;
}

TEST_P(Frame, HasARoundScaleBarOfThatLength) {
    const auto& [name, place, content, labels] = GetParam();
    const frame shown(place, content);
    const double metres = shown.scale_bar_metres();
    const double power = std::pow(10, std::floor(std::log10(metres) + 1e-9));
    EXPECT_TRUE(std::set<double>({1, 2, 5}).contains(std::round(metres / power * 1e6) / 1e6)) << metres;
    const rectangle bar = shown.scale_bar_place();
    EXPECT_TRUE(place.contains(bar));
    EXPECT_GT(bar.width, place.width / 12);
    EXPECT_LE(bar.width, place.width / 4 + 1e-9);
    const double degrees = bar.width / place.width * shown.shown().width();
    EXPECT_NEAR(metres_east(degrees, content.middle().y) / metres, 1, 1e-3);
    const std::string caption = metres < 1000 ? ">" + std::to_string(std::lround(metres)) + " м<"
                                              : ">" + std::to_string(std::lround(metres / 1000)) + " км<";
    EXPECT_NE(shown.scale_bar(language::russian).find(caption), std::string::npos)
        << shown.scale_bar(language::russian);
}

TEST_P(Frame, LabelsTheGraticule) {
    const auto& [name, place, content, labels] = GetParam();
    const auto found = labels_in(frame(place, content).graticule());
    EXPECT_GE(found.size(), 5U);
    EXPECT_LE(found.size(), 30U);
    for (const std::string& each : labels) EXPECT_TRUE(found.contains(each)) << each;
}

constexpr rectangle wide{44, 64, 1032, 600};
constexpr rectangle small{44, 64, 300, 300};

INSTANTIATE_TEST_SUITE_P(
    Contents, Frame,
    testing::Values(shown_case{"OneKilometre", wide, {57, 55, 57.016, 55.009}, {"57.01°E", "55.005°N"}},
                    shown_case{"OnePlace", small, {57, 55, 57, 55}, {"57°E", "55°N"}},
                    shown_case{"TallInAWideFrame", wide, {57, 40, 58, 60}, {"40°N", "60°N"}},
                    shown_case{"WideInASquare", small, {30, 50, 90, 52}, {"40°E", "80°E"}},
                    shown_case{"Equator", wide, {-3, -2, 3, 2}, {"0°", "2°E", "2°W", "2°S"}},
                    shown_case{"DateLine", wide, {175, 60, 190, 66}, {"180°"}},
                    shown_case{"FarNorth", small, {10, 78, 40, 84}, {"80°N"}}),
    case_name);

TEST(Frame, WritesNoParallelBeyondThePoles) {
    for (const std::string& label : labels_in(frame(wide, {-180, -90, 180, 90}).graticule())) {
        const bool parallel = label.ends_with("N") || label.ends_with("S");
        EXPECT_TRUE(!parallel || std::stod(label) <= 90) << label;
    }
}

}  // namespace
}  // namespace oxhost::map
