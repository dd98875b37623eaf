#include "map/captions.h"

#include <cmath>

#include "testing/case_name.h"

namespace oxhost::map {
namespace {

constexpr rectangle within{100, 50, 600, 400};
constexpr rectangle bar{560, 416, 128, 24};  // reserved, as a frame's scale bar is

struct arrangement {
    const char* name;
    std::vector<polyline> lines;
    std::string text;
    std::size_t placed;  ///< at least
    std::size_t offered = 0;
};

/// `count` lines of two vertices, each moved on from the one before.
std::vector<polyline> parallel(std::size_t count, point first, point second, point step) {
    std::vector<polyline> lines;
    for (std::size_t i = 0; i < count; ++i) {
        const double n = static_cast<double>(i);
        lines.push_back(
            {{first.x + n * step.x, first.y + n * step.y}, {second.x + n * step.x, second.y + n * step.y}});
    }
    return lines;
}

bool crosses(const polyline& line, const rectangle& box) {
    for (std::size_t i = 1; i < line.size(); ++i)
        for (double part = 0; part <= 1; part += 1.0 / 512) {
            const double x = std::lerp(line[i - 1].x, line[i].x, part),
                         y = std::lerp(line[i - 1].y, line[i].y, part);
            if (x > box.x && x < box.x + box.width && y > box.y && y < box.y + box.height) return true;
        }
    return false;
}

class Captions : public testing::TestWithParam<arrangement> {};

TEST_P(Captions, LieInTheFrameOverNothingElse) {
    const arrangement& given = GetParam();
    captions names(within);
    names.avoid(bar);
    for (const polyline& line : given.lines) names.avoid(line);
    for (const polyline& line : given.lines) names.add(given.text, line);
    const auto& placed = names.placed();
    EXPECT_GE(placed.size(), given.placed);
    EXPECT_LE(placed.size(), given.lines.size());
    for (std::size_t i = 0; i < placed.size(); ++i) {
        const rectangle& box = placed[i].place;
        EXPECT_TRUE(within.contains(box)) << i;
        EXPECT_GT(placed[i].baseline(), box.y);
        EXPECT_LE(placed[i].baseline(), box.y + box.height);
        EXPECT_NEAR(box.width, captions::width_of(given.text), 1e-9);
        EXPECT_FALSE(box.overlaps(bar)) << i;
        for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(box.overlaps(placed[j].place)) << i << " over " << j;
        for (const polyline& line : given.lines) EXPECT_FALSE(crosses(line, box)) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Arrangements, Captions,
    testing::Values(arrangement{"InTheMiddle", {{{300, 200}, {400, 260}}}, "profile 1", 1},
                    arrangement{"AtTheRightEdge", {{{600, 200}, {698, 200}}}, "profile 1", 1},
                    arrangement{"AtTheLeftEdge", {{{101, 200}, {200, 240}}}, "профиль 1", 1},
                    arrangement{"FromEdgeToEdge", {{{100, 250}, {700, 250}}}, "profile 1", 1},
                    arrangement{"InACorner", {{{690, 440}, {699, 449}}}, "profile 1", 1},
                    arrangement{"OneVertex", {{{400, 200}}}, "profile 1", 1},
                    arrangement{"NoVertex", {{}}, "profile 1", 0},
                    arrangement{"WiderThanTheFrame", {{{300, 200}, {400, 260}}}, std::string(200, 'w'), 0},
                    arrangement{"ManyWithRoom", parallel(18, {150, 70}, {500, 70}, {0, 20}), "profile 1", 18},
                    arrangement{"Crossing",
                                {{{200, 100}, {600, 400}}, {{200, 400}, {600, 100}}, {{400, 80}, {400, 430}}},
                                "profile",
                                3},
                    arrangement{"Dense", parallel(90, {300, 200}, {310, 300}, {2, 1}), "profile 1", 5}),
    case_name);

}  // namespace
}  // namespace oxhost::map
