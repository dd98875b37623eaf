#include <gtest/gtest.h>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost_test;

struct selection {
    const char* name;
    std::vector<std::string> asked;
    std::vector<int> meant;  ///< indexes; none for a refusal
};

class Selection : public testing::TestWithParam<selection> {};

TEST_P(Selection, MeansTheseScenes) {
    const sandbox box;
    const auto scene = [](const char* caption, const char* proj4, bool profile = true) {
        return source_line{caption, proj4, {{57, 55}, {58, 56}}, profile};
    };
    box.make_project({scene("Line 1", wgs84), scene("Line 10", wgs84), scene("Line 2", gauss_kruger_10),
                      scene("Line area", wgs84, false), scene("1-2", ""), scene("Line*", wgs84),
                      scene("Профиль 7", "+proj=longlat +ellps=WGS84 +towgs84=0,0,0 +no_defs")});
    std::vector<std::string> arguments{"reproject", "p.gpkg",     "--to", "4326",     "--dry-run", "--yes",
                                       "--quiet",   "--on-error", "skip", "--report", "r.json"};
    arguments.insert(arguments.end(), GetParam().asked.begin(), GetParam().asked.end());
    const auto run = box.oxhost(arguments);
    std::vector<int> taken;
    if (run.code == 0) {
        const auto report = box.json("r.json");
        for (const auto& each : report.at("scenes")) taken.push_back(each.at("index"));
    }
    EXPECT_EQ(taken, GetParam().meant) << run.error;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Selection,
    testing::Values(selection{"Numbers", {"--scene", "2", "0", "2"}, {0, 2}},
                    selection{"RangePassesOverAreas", {"--scene", "2-5"}, {2, 4, 5}},
                    selection{"CaptionBeforeRange", {"--scene", "1-2"}, {4}},
                    selection{"CaptionBeforePattern", {"--scene", "Line*"}, {5}},
                    selection{"Pattern", {"--scene", "Line ?"}, {0, 2}},
                    selection{"PatternInCyrillic", {"--scene", "Проф?ль*"}, {6}},
                    selection{"OptionsAddUp", {"--scene", "0-1", "--scene", "*7"}, {0, 1, 6}},
                    selection{"SourceIsTheSystemNotItsText", {"--source", "EPSG:4326"}, {0, 1, 5, 6}},
                    selection{"SourcesAddUp", {"--source", "none", "--source", gauss_kruger_10}, {2, 4}},
                    selection{"SourceNarrows", {"--scene", "0-2", "--source", "4326"}, {0, 1}},
                    selection{"RangeBeyondTheEnd", {"--scene", "2-7"}, {}},
                    selection{"RangeBackwards", {"--scene", "5-2"}, {}},
                    selection{"PatternOfNone", {"--scene", "Z*"}, {}},
                    selection{"SourceOfNone", {"--source", "EPSG:3035"}, {}}),
    case_name);

}  // namespace
