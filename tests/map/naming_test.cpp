#include "map/naming.h"

#include <regex>

#include "map/lettering.h"
#include "testing/case_name.h"

namespace oxhost::map {
namespace {

constexpr rectangle within{100, 50, 600, 400};
constexpr rectangle bar{560, 416, 128, 24};  // reserved, as a frame's scale bar is

struct arrangement {
    const char* name;
    std::vector<polyline> lines;
    std::string caption;    ///< followed by a letter of the line's own
    std::size_t captioned;  ///< at least; the others bear their numbers
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

struct written {
    std::string text;
    rectangle place;  ///< a little smaller than the letters, so that rounding makes no overlap
};

std::vector<written> texts_in(const std::string& elements) {
    static const std::regex element(
        R"re(<text class="(caption|number)" x="([-\d.]+)" y="([-\d.]+)">([^<]*)<)re");
    std::vector<written> found;
    for (std::sregex_iterator at(elements.begin(), elements.end(), element), end; at != end; ++at) {
        const double size = (*at)[1] == "caption" ? text_size : 10;
        const double x = std::stod((*at)[2]), baseline = std::stod((*at)[3]);
        found.push_back({(*at)[4], {x, baseline - size + 1, width_of((*at)[4].str(), size), size}});
    }
    return found;
}

TEST_CASES(
    Names, AreThereForEveryLineAndOverNothingElse, arrangement,
    {"InTheMiddle", {{{300, 200}, {400, 260}}}, "profile", 1},
    {"AtTheRightEdge", {{{600, 200}, {698, 200}}}, "profile", 1},
    {"FromEdgeToEdge", {{{100, 250}, {700, 250}}}, "профиль", 1},
    {"InACorner", {{{690, 60}, {699, 69}}}, "profile", 1}, {"OneVertex", {{{400, 200}}}, "profile", 1},
    {"WiderThanTheFrame", {{{300, 200}, {400, 260}}}, std::string(200, 'w'), 0},
    {"ManyWithRoom", parallel(18, {150, 70}, {500, 70}, {0, 20}), "profile", 18},
    {"Crossing", {{{200, 100}, {600, 400}}, {{200, 400}, {600, 100}}, {{400, 80}, {400, 430}}}, "profile", 3},
    {"CloseAcross", parallel(12, {200, 200}, {500, 200}, {0, 4}), "профиль", 12},
    {"CloseUpwards", parallel(12, {300, 360}, {400, 140}, {5, 0}), "profile", 12},
    {"SixtyLong", parallel(60, {130, 80}, {500, 110}, {0, 5}), "profile", 0},
    {"SameLineTwice", {{{300, 200}, {400, 260}}, {{300, 200}, {400, 260}}}, "profile", 2}) {
    std::vector<named_line> lines;
    for (std::size_t i = 0; i < c.lines.size(); ++i)
        lines.push_back({c.caption + static_cast<char>('A' + i % 26), std::to_string(i), c.lines[i]});
    const names made = name_lines(within, bar, lines);
    EXPECT_EQ(made.without_room, 0U);
    const auto texts = texts_in(made.elements);
    EXPECT_EQ(texts.size(), lines.size());
    std::size_t captioned = 0;
    for (const named_line& each : lines) {
        const bool by_caption = std::ranges::find(texts, each.caption, &written::text) != texts.end();
        captioned += by_caption;
        EXPECT_TRUE(by_caption || std::ranges::find(texts, each.number, &written::text) != texts.end())
            << each.number;
    }
    EXPECT_GE(captioned, c.captioned);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_TRUE(within.contains(texts[i].place)) << texts[i].text;
        EXPECT_FALSE(texts[i].place.overlaps(bar)) << texts[i].text;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(texts[i].place.overlaps(texts[j].place))
                << texts[i].text << " over " << texts[j].text;
    }
}

}  // namespace
}  // namespace oxhost::map
