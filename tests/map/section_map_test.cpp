#include "map/section_map.h"

#include <regex>

#include "map/svg.h"
#include "testing/case_name.h"

namespace oxhost::map {
namespace {

struct sheet_case {
    const char* name;
    std::vector<mapped_line> lines;
    std::size_t frames;  ///< grounds with a graticule
    std::vector<std::string> parts;
};

std::size_t count(const std::string& text, const std::string& part) {
    std::size_t found = 0;
    for (auto at = text.find(part); at != text.npos; at = text.find(part, at + 1)) ++found;
    return found;
}

struct box_of_numbers {
    double left = 1e9, top = 1e9, right = -1e9, bottom = -1e9;
};

/// Around all vertices of the lines that are drawn.
box_of_numbers drawn_lines(const std::string& picture) {
    static const std::regex path(R"re(class="line [a-z]+" d="([^"h]*)")re"),
        vertex(R"re([ML]([-\d.]+) ([-\d.]+))re");
    box_of_numbers box;
    for (std::sregex_iterator p(picture.begin(), picture.end(), path), end; p != end; ++p) {
        const std::string d = (*p)[1];
        for (std::sregex_iterator v(d.begin(), d.end(), vertex); v != end; ++v) {
            const double x = std::stod((*v)[1]), y = std::stod((*v)[2]);
            box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x),
                   std::max(box.bottom, y)};
        }
    }
    return box;
}

mapped_line line(const char* caption, polyline now, look shown_as = look::kept,
                 std::optional<polyline> before = {}) {
    return {.caption = caption,
            .shown_as = shown_as,
            .before = std::move(before),
            .now = std::move(now),
            .shift = displacement{103.26, 287},
            .scale_error = 0.0157};
}

class SectionMap : public testing::TestWithParam<sheet_case> {};

TEST_P(SectionMap, ShowsEveryLineInsideItself) {
    const sheet_case& given = GetParam();
    const std::string picture = section_map(
        {.title = "p", .subtitle = "", .note = "", .wanted = language::english, .lines = given.lines});
    EXPECT_EQ(count(picture, "class=\"border\""), given.frames);
    for (const std::string& part : given.parts) EXPECT_NE(picture.find(part), std::string::npos) << part;
    for (const char* broken : {"nan", "inf", "e+"})
        EXPECT_EQ(picture.find("\"" + std::string(broken)), std::string::npos);
    EXPECT_EQ(picture.find("d=\"M-"), std::string::npos);
    const double height = std::stod(picture.substr(picture.find("height=\"") + 8));
    const auto [left, top, right, bottom] = drawn_lines(picture);
    if (given.frames == 0) return;
    EXPECT_GE(left, 56);
    EXPECT_LE(right, 1120 - 56);
    EXPECT_GE(top, 72);
    EXPECT_LE(bottom, height - 48);
    EXPECT_GT(std::max(right - left, bottom - top), 100) << "the lines are a speck";
}

INSTANTIATE_TEST_SUITE_P(
    Sheets, SectionMap,
    testing::Values(
        sheet_case{"NoLines", {}, 0, {">p<", "Longitude and latitude on WGS 84<"}},
        sheet_case{"WithoutPlace",
                   {{0, "lost", look::failed, {}, {}, {}, {}}, line("there", {{57, 55}, {58, 56}})},
                   1,
                   {"; without a place on the map: 1<", ">there<", ">failed<", ">lost<"}},
        sheet_case{
            "BeforeAndAfter",
            {line("A", {{57, 55}, {58, 56}}, look::changed, polyline{{57.001, 55}, {58.001, 56}})},
            1,
            {"class=\"line before\"", "class=\"line after\"", ">A<", ">103.3 m<", ">W 287°<", ">1.57 %<"}},
        sheet_case{"MarkupInACaption",
                   {line("<A&\"B\">\x01\xFF", {{57, 55}, {58, 56}})},
                   1,
                   {">&lt;A&amp;&quot;B&quot;&gt; \xEF\xBF\xBD<"}},
        sheet_case{"AcrossTheDateLine",
                   {line("west", {{179, 65}, {179.5, 65.5}}), line("over", {{179.8, 65}, {-179.8, 65.2}}),
                    line("east", {{-179.5, 65}, {-179, 65.5}})},
                   1,
                   {">west<", ">over<", ">east<", ">180°<"}},
        sheet_case{"OneVertexAndALine",
                   {line("well", {{57, 55}}), line("line", {{57.1, 55}, {57.3, 55.2}})},
                   1,
                   {">well<"}},
        sheet_case{"TwoRegions",
                   {line("A", {{57, 55}, {58, 56}}), line("B", {{100, 60}, {101, 61}})},
                   3,
                   {">A</text>", ">B</text>", "class=\"region\""}},
        sheet_case{"FromPoleToPole", {line("A", {{0, -90}, {10, 0}, {0, 90}})}, 1, {">A<"}}),
    case_name);

TEST(SectionMap, HasALetterForEachOfAtMostSixRegions) {
    sheet many{.title = {}, .subtitle = {}, .note = "; end", .wanted = language::russian, .lines = {}};
    for (int i = 0; i < 12; ++i)
        many.lines.push_back(line("x", {{-150.0 + 25 * i, 50}, {-149.0 + 25 * i, 51}}));
    const std::string picture = section_map(many);
    EXPECT_EQ(count(picture, "class=\"region\""), 6U);
    EXPECT_EQ(count(picture, "class=\"letter\""), 12U);
    EXPECT_NE(picture.find(">F<"), std::string::npos);
    EXPECT_NE(picture.find("Долгота и широта на WGS 84; end<"), std::string::npos);
}

}  // namespace
}  // namespace oxhost::map
