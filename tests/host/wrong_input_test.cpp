#include <gtest/gtest.h>

#include <algorithm>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost_test;

struct wrong_input {
    const char* name;
    std::vector<std::string> arguments;
    int code;
    const char* said;  ///< part of the one line
};

class WrongInput : public testing::TestWithParam<wrong_input> {};

/// The one line on the error output names the culprit; neither the project nor any other file changes.
TEST_P(WrongInput, EndsWithOneLineAndChangesNothing) {
    const sandbox box;
    box.make_project({{"A", gauss_kruger_10, {{10400000, 6200000}, {10410000, 6210000}}},
                      {"twin", wgs84, {{57, 55}, {58, 56}}},
                      {"twin", wgs84, {{57, 55}, {58, 56}}},
                      {"area", wgs84, {{57, 55}, {58, 56}}, false}});
    box.write("text.gpkg", "this is no database");
    box.write("short.gpkg", box.bytes("p.gpkg").substr(0, 5000));
    box.write("text.pj4", "nonsense");
    fs::copy_file(OXHOST_BUNDLE, box.path("short.so"));
    fs::resize_file(box.path("short.so"), 20000);
    const std::string project = box.bytes("p.gpkg");
    const auto files = box.files();

    const auto run = box.oxhost(GetParam().arguments);
    EXPECT_EQ(run.code, GetParam().code);
    EXPECT_EQ(std::ranges::count(run.error, '\n'), 1) << run.error;
    EXPECT_NE(run.error.find(GetParam().said), std::string::npos) << run.error;
    EXPECT_TRUE(box.bytes("p.gpkg") == project) << "the project changed";
    EXPECT_EQ(box.files(), files);
}

std::vector<std::string> reproject(std::vector<std::string> more, const std::string& to = utm40) {
    more.insert(more.begin(), {"reproject", "p.gpkg", "--to", to});
    return more;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, WrongInput,
    testing::Values(
        wrong_input{
            "NoProject", {"reproject", "gone.gpkg", "--to", utm40, "--all"}, 66, "gone.gpkg: no such file"},
        wrong_input{"ProjectIsText", {"list", "text.gpkg"}, 66, "text.gpkg: "},
        wrong_input{
            "ProjectCutShort", {"reproject", "short.gpkg", "--to", utm40, "--all"}, 66, "short.gpkg: "},
        wrong_input{"ProjectIsFolder", {"list", "."}, 66, ".: is not a file"},
        wrong_input{"UnknownCode", reproject({"--all"}, "EPSG:999999"), 2, "EPSG:999999"},
        wrong_input{"UnknownProjection", reproject({"--all"}, "+proj=nowhere"), 2, "+proj=nowhere"},
        wrong_input{"GeocentricTarget", reproject({"--all"}, "EPSG:4978"), 2, "EPSG:4978"},
        wrong_input{"EmptyTarget", reproject({"--all"}, ""), 2, "empty"},
        wrong_input{"NoTargetFile", reproject({"--all"}, "gone.prj"), 66, "gone.prj: no such file"},
        wrong_input{"TargetFileIsText", reproject({"--all"}, "text.pj4"), 2, "text.pj4"},
        wrong_input{"NoSuchIndex", reproject({"--scene", "17"}), 2, "17"},
        wrong_input{"NoSuchCaption", reproject({"--scene", "A", "B"}), 2, "\"B\""},
        wrong_input{"CaptionOfTwo", reproject({"--scene", "twin"}), 2, "\"twin\""},
        wrong_input{"NoProfile", reproject({"--scene", "area"}), 2, "\"area\""},
        wrong_input{"ReportIntoNowhere", reproject({"--all", "--report", "gone/r.json"}), 2, "gone/r.json"},
        wrong_input{"MapIsFolder", reproject({"--all", "--map", "."}), 2, ".: cannot be written"},
        wrong_input{"ReportIsProject", reproject({"--all", "--report", "p.gpkg"}), 2, "p.gpkg"},
        wrong_input{"NoBundle", reproject({"--all", "--bundle", "gone.so"}), 66, "gone.so: no such file"},
        wrong_input{"BundleIsText", reproject({"--all", "--bundle", "text.gpkg"}), 66, "text.gpkg: "},
        wrong_input{"BundleCutShort", reproject({"--all", "--bundle", "short.so"}), 66, "short.so: "},
        wrong_input{"OtherLibrary", reproject({"--all", "--bundle", OTHER_LIBRARY}), 66, "is no bundle"},
        wrong_input{"YesAndNo", reproject({"--all", "--yes", "--no"}), 64, "--no"},
        wrong_input{"NoScenes", reproject({}), 64, "--all"},
        wrong_input{"UnknownPolicy", reproject({"--all", "--on-error", "guess"}), 64, "guess"},
        wrong_input{"NoCommand", {}, 64, "command"},
        wrong_input{"ImportOfNothing", {"import", "new.gpkg", "gone.geojson"}, 66, "gone.geojson"},
        wrong_input{"ImportIntoNowhere", {"import", "gone/new.gpkg", "lines.geojson"}, 2, "gone/new.gpkg"},
        wrong_input{"ExportIntoNowhere", {"export", "p.gpkg", "gone/o.shp"}, 2, "gone/o.shp"},
        wrong_input{"ExportOverProject", {"export", "p.gpkg", "p.gpkg"}, 2, "p.gpkg"},
        wrong_input{"ExportUnknownFormat", {"export", "p.gpkg", "o.xyz"}, 2, "o.xyz"},
        wrong_input{"UnknownUtility", {"utilities", "p.gpkg", "--run", "polish"}, 2, "polish"},
        wrong_input{"DescribeNonsense", {"describe", "nonsense"}, 2, "nonsense"}),
    case_name);

}  // namespace
