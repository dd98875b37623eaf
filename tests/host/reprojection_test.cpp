#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost_test;
using oxhost::point;
using oxhost::polyline;

// ---- where the vertices come out

/// WGS 84 longitude and latitude of a place on the Krassowsky ellipsoid by the seven parameters of
/// `gauss_kruger_10`: geographic to geocentric, position vector rotation, and back by iteration.
point helmert_to_wgs84(point degrees) {
    constexpr double radian = std::numbers::pi / 180, second = radian / 3600;
    const auto squared_eccentricity = [](double rf) { return (2 - 1 / rf) / rf; };
    const double a = 6378245, e2 = squared_eccentricity(298.3);
    const double lon = degrees.x * radian, lat = degrees.y * radian;
    const double n = a / std::sqrt(1 - e2 * std::pow(std::sin(lat), 2));
    const double x = n * std::cos(lat) * std::cos(lon), y = n * std::cos(lat) * std::sin(lon);
    const double z = n * (1 - e2) * std::sin(lat);

    const double scale = 1 - 0.12e-6, ry = 0.35 * second, rz = 0.82 * second;
    const double x2 = 23.92 + scale * (x - rz * y + ry * z);
    const double y2 = -141.27 + scale * (rz * x + y);
    const double z2 = -80.9 + scale * (-ry * x + z);

    const double a2 = 6378137, f2 = squared_eccentricity(298.257223563), p = std::hypot(x2, y2);
    double lat2 = std::atan2(z2, p * (1 - f2));
    for (int i = 0; i < 10; ++i) {
        const double n2 = a2 / std::sqrt(1 - f2 * std::pow(std::sin(lat2), 2));
        lat2 = std::atan2(z2 + f2 * n2 * std::sin(lat2), p);
    }
    return {std::atan2(y2, x2) / radian, lat2 / radian};
}

struct known_points {
    const char* name;
    std::string source;
    polyline before;
    std::string target;
    polyline after;
    double tolerance;  ///< in the target's units
};

class Reprojection : public testing::TestWithParam<known_points> {};

TEST_P(Reprojection, StoresTheExpectedLineAndText) {
    const known_points& of = GetParam();
    const sandbox box;
    box.make_project({{"line", of.source, of.before}});
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", of.target, "--all"});
    ASSERT_EQ(run.code, 0) << run.error;
    EXPECT_EQ(box.listed("proj4").front(), of.target);
    const polyline line = box.stored_lines().front();
    ASSERT_EQ(line.size(), of.after.size());
    for (std::size_t i = 0; i < line.size(); ++i) {
        EXPECT_NEAR(line[i].x, of.after[i].x, of.tolerance) << "vertex " << i;
        EXPECT_NEAR(line[i].y, of.after[i].y, of.tolerance) << "vertex " << i;
    }
}

constexpr auto krassowsky =
    "+proj=longlat +ellps=krass +towgs84=23.92,-141.27,-80.9,0,0.35,0.82,-0.12 +no_defs";

INSTANTIATE_TEST_SUITE_P(
    KnownPoints, Reprojection,
    testing::Values(
        // cs2cs -f %.6f SOURCE +to TARGET, PROJ 9.1.1
        known_points{"GaussKrugerToUtm",
                     gauss_kruger_10,
                     {{10400000, 6200000}, {10450000.5, 6250000.25}, {10612345.67, 5801234.56}},
                     utm40,
                     {{399949.535714, 6197449.657410},
                      {449929.960198, 6247430.233274},
                      {612212.468706, 5798843.485708}},
                     1e-5},
        // EPSG guidance note 7-2, Transverse Mercator: 50 30' N, 0 30' E on OSGB 1936
        known_points{"BritishNationalGrid",
                     "+proj=longlat +ellps=airy +no_defs",
                     {{0.5, 50.5}, {0.5, 50.5}},
                     "+proj=tmerc +lat_0=49 +lon_0=-2 +k=0.9996012717 +x_0=400000 +y_0=-100000 +ellps=airy "
                     "+units=m +no_defs",
                     {{577274.99, 69740.50}, {577274.99, 69740.50}},
                     0.01},
        known_points{"HelmertOfSevenParameters",
                     krassowsky,
                     {{57, 55}, {90.25, 71.5}},
                     wgs84,
                     {helmert_to_wgs84({57, 55}), helmert_to_wgs84({90.25, 71.5})},
                     1e-9}),  // 0.1 mm
    case_name);

// ---- what becomes of each scene

const polyline good_line{{10400000, 6200000}, {10410000, 6210000}};
const polyline bad_line{{57, 55}, {58, 56}, {58.5, 95}};  // no such latitude

void make_mixed_project(const sandbox& box) {
    box.make_project({{"first", gauss_kruger_10, good_line},
                      {"area", gauss_kruger_10, good_line, false},
                      {"bad", wgs84, bad_line},
                      {"last", gauss_kruger_10, good_line},
                      {"there", utm40, {{400000, 6200000}, {410000, 6200000}}}});
}

struct policy_case {
    const char* name;
    std::vector<std::string> outcomes;  ///< of first, bad, last, there
    bool changes_first;
    bool changes_last;
};

class OnError : public testing::TestWithParam<policy_case> {};

TEST_P(OnError, DecidesWhatIsLeft) {
    const policy_case& of = GetParam();
    const sandbox box;
    make_mixed_project(box);
    const auto before = box.stored_lines();
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all", "--on-error", of.name,
                                 "--report", "r.json", "--quiet"});
    EXPECT_EQ(run.code, 1);
    EXPECT_NE(run.error.find("p.gpkg: scene 2 \"bad\": vertex 2 (58.5, 95): "), std::string::npos)
        << run.error;

    const auto report = box.json("r.json");
    std::vector<std::string> outcomes;
    for (const auto& scene : report.at("scenes")) outcomes.push_back(scene.at("outcome"));
    EXPECT_EQ(outcomes, of.outcomes);
    EXPECT_EQ(report.at("scenes").at(1).at("failure").at("vertex"), 2);
    const auto after = box.stored_lines();
    for (const std::size_t untouched : {1u, 2u, 4u}) EXPECT_EQ(after[untouched], before[untouched]);
    EXPECT_EQ(after[0] != before[0], of.changes_first);
    EXPECT_EQ(after[3] != before[3], of.changes_last);
    const auto texts = box.listed("proj4");
    EXPECT_EQ(texts[0], of.changes_first ? utm40 : gauss_kruger_10);
    EXPECT_EQ(texts[3], of.changes_last ? utm40 : gauss_kruger_10);
}

INSTANTIATE_TEST_SUITE_P(
    Policies, OnError,
    testing::Values(
        policy_case{"stop", {"reprojected", "failed", "not attempted", "not attempted"}, true, false},
        policy_case{"skip", {"reprojected", "failed", "reprojected", "unchanged"}, true, true},
        policy_case{"rollback", {"unchanged", "failed", "not attempted", "not attempted"}, false, false}),
    case_name);

/// The log beside the project reaches a limit in mid-run: every scene is wholly old or wholly new, and said
/// to be so.
TEST(FullDisk, LeavesWholeScenesAndTellsWhich) {
    const sandbox box;
    std::vector<source_line> lines;
    for (int i = 0; i < 8; ++i) {
        polyline& line = lines.emplace_back(source_line{std::to_string(i), wgs84, {}}).line;
        for (int k = 0; k < 3000; ++k) line.push_back({57 + i * 0.1, 50 + k * 0.001});
    }
    box.make_project(lines);
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all"}, "en",
                                "trap '' XFSZ; ulimit -f 400;");  // 200 KB of the 400 KB
    EXPECT_EQ(run.code, 1);
    const auto texts = box.listed("proj4");
    const auto after = box.stored_lines();
    int stored = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool is_new = texts[i] == utm40;
        stored += is_new;
        EXPECT_EQ(after[i][0].x > 1000, is_new) << i;
        EXPECT_EQ((run.error.find("scene " + std::to_string(i) + " \"") != std::string::npos), !is_new)
            << run.error;
    }
    EXPECT_GT(stored, 0);
    EXPECT_LT(stored, 8);
    EXPECT_NE(run.out.find(std::to_string(stored) + " reprojected"), std::string::npos) << run.out;
}

TEST(Report, MeasuresTheLine) {
    const sandbox box;
    box.make_project({{"line", gauss_kruger_10, {{10400000, 6200000}, {10450000, 6250000}}}});
    ASSERT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all", "--report", "r.json"}).code, 0);
    const auto scene = box.json("r.json").at("scenes").at(0);
    // Ends by cs2cs to +proj=longlat +ellps=krass, then geod -F %.4f -I +ellps=krass, PROJ 9.1.1
    EXPECT_NEAR(scene.at("length_before_m"), 70705.6217, 0.0002);
    EXPECT_NEAR(scene.at("length_after_m"), scene.at("length_before_m"), 0.5);  // another ellipsoid
    EXPECT_LT(scene.at("largest_ground_shift_m"), 1e-3);
    EXPECT_GT(scene.at("largest_datum_shift_m"), 50);
    EXPECT_FALSE(scene.at("operation").at("definition").get<std::string>().empty());
    EXPECT_TRUE(scene.at("failure").is_null());
}

TEST(Scenes, AreChosenByIndexAndCaption) {
    const sandbox box;
    make_mixed_project(box);
    ASSERT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--scene", "3", "first"}).code, 0);
    EXPECT_EQ(box.listed("proj4"), (std::vector<std::string>{utm40, gauss_kruger_10, wgs84, utm40, utm40}));
}

/// A dry run tells what a real one does, and leaves not a byte changed.
TEST(DryRun, TellsTheSameAndChangesNothing) {
    const sandbox box;
    make_mixed_project(box);
    const std::string project = box.bytes("p.gpkg");
    const std::vector<std::string> command{"reproject", "p.gpkg",     "--to",  utm40,
                                           "--all",     "--on-error", "skip",  "--report",
                                           "r.json",    "--map",      "m.svg", "--overwrite"};
    auto dry = command;
    dry.push_back("--dry-run");
    EXPECT_EQ(box.oxhost(dry).code, 1);
    EXPECT_TRUE(box.bytes("p.gpkg") == project);
    const auto files = box.files();
    const auto told = box.json("r.json");
    const std::string map = box.bytes("m.svg");
    EXPECT_EQ(box.oxhost(command).code, 1);
    EXPECT_FALSE(box.bytes("p.gpkg") == project);
    EXPECT_EQ(box.json("r.json").at("scenes"), told.at("scenes"));
    EXPECT_EQ(box.files(), files) << "the log is folded back";
    for (const char* part :
         {"class=\"line before\"", "class=\"line after\"", "class=\"line failed\"", ">last<"})
        EXPECT_NE(map.find(part), std::string::npos) << part;
}

// ---- questions

struct question_case {
    const char* name;
    const char* language;
    const char* target;
    const char* asked;
    std::vector<std::string> texts;  ///< of both scenes after a yes
};

class Question : public testing::TestWithParam<question_case> {};

TEST_P(Question, IsAnsweredBeforehandOrRefused) {
    const question_case& of = GetParam();
    const sandbox box;
    box.make_project({{"with", gauss_kruger_10, good_line}, {"without", "", good_line}});
    const std::string project = box.bytes("p.gpkg");
    const auto before = box.stored_lines();
    const auto answered = [&](std::vector<std::string> answer) {
        answer.insert(answer.begin(), {"reproject", "p.gpkg", "--to", of.target, "--all"});
        return box.oxhost(answer, of.language);
    };
    const auto nobody = answered({});
    EXPECT_EQ(nobody.code, 3);
    EXPECT_NE(nobody.error.find(of.asked), std::string::npos) << nobody.error;
    const auto no = answered({"--no"});
    EXPECT_EQ(no.code, 3);
    EXPECT_NE(no.out.find(of.asked), std::string::npos) << no.out;
    EXPECT_TRUE(box.bytes("p.gpkg") == project);

    EXPECT_EQ(answered({"--yes", "--quiet"}).code, 0);
    EXPECT_EQ(box.listed("proj4"), of.texts);
    EXPECT_EQ(box.stored_lines()[1], before[1]);
}

INSTANTIATE_TEST_SUITE_P(
    BothLanguages, Question,
    testing::Values(
        question_case{"ResetEnglish", "en", "none", "the projection will be reset.\nContinue?", {"", ""}},
        question_case{"ResetRussian", "ru", "none", "проекция будет сброшена.\nПродолжить?", {"", ""}},
        question_case{"AssignEnglish", "en", utm40, "do not have a projection.hen executed", {utm40, utm40}},
        question_case{"AssignRussian", "ru", utm40, "проекция отсуствует.", {utm40, utm40}}),
    case_name);

// ---- warnings

TEST(Warnings, ComeOncePerProjection) {
    const sandbox box;
    const std::string no_datum = "+proj=tmerc +lon_0=57 +x_0=10500000 +ellps=krass +units=m +no_defs";
    box.make_project(
        {{"one", no_datum, good_line}, {"two", no_datum, good_line}, {"three", no_datum, good_line}});
    const auto run = box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.error.find("no datum shift: off by about"), run.error.rfind("no datum shift")) << run.error;
}

}  // namespace
