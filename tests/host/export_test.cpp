// Exports as other programs read them: ogr2ogr and ogrinfo look, cs2cs says where things are.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <sstream>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace oxhost_test {
namespace {

/// What a command prints, run in the box's folder.
std::string said(const sandbox& box, const std::string& command) {
    const std::string whole = "cd '" + box.path("").string() + "' && " + command + " 2>&1";
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(whole.c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t count = fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), count);
    return text;
}

std::string table(const sandbox& box, const std::string& file, const std::string& options) {
    return said(box, "ogr2ogr -f CSV /vsistdout/ " + file + ' ' + options);
}

using vertex = std::vector<double>;

/// All vertices of all WKT lines in a text.
std::vector<vertex> vertices(const std::string& text) {
    std::vector<vertex> found;
    for (auto at = text.find("LINESTRING"); at != text.npos; at = text.find("LINESTRING", at)) {
        at = text.find('(', at) + 1;
        std::istringstream line(text.substr(at, text.find(')', at) - at));
        for (std::string each; std::getline(line, each, ',');) {
            std::istringstream numbers(each);
            found.emplace_back();
            for (double number = 0; numbers >> number;) found.back().push_back(number);
        }
    }
    return found;
}

/// x and y moved by cs2cs.
std::vector<vertex> moved(const sandbox& box, std::vector<vertex> places, const std::string& from,
                          const std::string& to) {
    std::ostringstream input;
    input.precision(17);
    for (const vertex& each : places) input << each[0] << ' ' << each[1] << '\n';
    box.write("places.txt", input.str());
    std::istringstream output(said(box, "cs2cs -f %.10f " + from + " +to " + to + " places.txt"));
    for (vertex& each : places) {
        double z = 0;
        output >> each[0] >> each[1] >> z;
    }
    EXPECT_TRUE(output) << output.str();
    return places;
}

void expect_near(const std::vector<vertex>& found, const std::vector<vertex>& expected, double tolerance) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        ASSERT_EQ(found[i].size(), expected[i].size()) << i;
        for (std::size_t k = 0; k < found[i].size(); ++k)
            EXPECT_NEAR(found[i][k], expected[i][k], k < 2 ? tolerance : 0) << i << ' ' << k;
    }
}

constexpr auto survey = R"csv(WKT,caption,depth_to_basement,depth_to_moho,open,shot,logged,note
"LINESTRING ZM (56.9 55 100.5 0,57.1 55.1 101 10.25,57.2 55 102 20)",A-A',1234.5678901234,5000000000,1,2026-11-23,2026-11-23T21:30:00.250Z,"Сквозной, ""верхний"""
"LINESTRING (58 55,58.1 55.1)",B,-0.1,,0,,,
"LINESTRING M (59 55 1,59.1 55.1 2.5)",C,,7,,,,x
)csv";
constexpr auto survey_types = "String,String,Real,Integer64,Integer(Boolean),Date,DateTime,String";

/// Makes survey.gpkg, by ogr2ogr, and imports it.
void make_survey(const sandbox& box) {
    box.write("survey.csv", survey);
    box.write("survey.csvt", survey_types);
    said(box,
         "ogr2ogr -f GPKG survey.gpkg survey.csv -nlt GEOMETRY -a_srs EPSG:4326 -unsetFieldWidth "
         "-oo KEEP_GEOM_COLUMNS=NO -oo EMPTY_STRING_AS_NULL=YES");
    const auto run = box.oxhost({"import", "p.gpkg", "survey.gpkg"});
    ASSERT_EQ(run.code, 0) << run.error;
}

constexpr auto attributes = "SELECT caption,depth_to_basement,depth_to_moho,open,shot,logged,note FROM ";

TEST(Export, BringsASurveyBackAfterTwoRuns) {
    const sandbox box;
    make_survey(box);
    const std::string values = table(box, "survey.gpkg", std::string("-sql '") + attributes + "survey'");
    const auto places = vertices(table(box, "survey.gpkg", "-lco GEOMETRY=AS_WKT"));
    ASSERT_EQ(places.size(), 7U);
    for (const char* target : {utm40, gauss_kruger_10}) {
        const auto run = box.oxhost({"reproject", "p.gpkg", "--to", target, "--all", "--yes"});
        ASSERT_EQ(run.code, 0) << run.error;
    }
    const auto run = box.oxhost({"export", "p.gpkg", "out.gpkg"});
    EXPECT_EQ(run.error, "") << "nothing is lost";
    EXPECT_EQ(table(box, "out.gpkg", std::string("-sql '") + attributes + "out'"), values);
    EXPECT_NE(values.find("1234.5678901234,\"5000000000\",\"1\",2026/11/23,2026/11/23 21:30:00.250+00"),
              values.npos)
        << values;
    const auto twice = moved(box, moved(box, places, wgs84, utm40), utm40, gauss_kruger_10);
    expect_near(vertices(table(box, "out.gpkg", "-lco GEOMETRY=AS_WKT")), twice, 1e-6);
    const std::string types =
        said(box, "ogrinfo -so -al out.gpkg | grep -E '^(depth|open|shot|logged|note)'");
    EXPECT_EQ(types,
              "depth_to_basement: Real (0.0)\ndepth_to_moho: Integer64 (0.0)\nopen: "
              "Integer(Boolean) (0.0)\nshot: Date (0.0)\nlogged: DateTime (0.0)\nnote: String (0.0)\n");
}

/// GDAL reads the coordinate system out of the file, datum shift and all.
TEST_CASES(ExportCrs, PutsLinesInTheirPlace, case_of<const char*>,
           {"GeoPackageOfAText", "o.gpkg", gauss_kruger_10}, {"GeoPackageOfACode", "o.gpkg", "EPSG:32640"},
           {"GeoJsonOfAText", "o.geojson", gauss_kruger_10}, {"GeoJsonOfACode", "o.geojson", "EPSG:32640"},
           {"ShapefileOfACode", "o.shp", "EPSG:32640"}, {"GeoJsonAsItsStandardSays", "o.geojson", nullptr}) {
    const sandbox box;
    make_survey(box);
    const auto places = vertices(table(box, "survey.gpkg", "-lco GEOMETRY=AS_WKT"));
    ASSERT_EQ(box.oxhost({"reproject", "p.gpkg", "--to", utm40, "--all", "--yes"}).code, 0);
    std::vector<std::string> command{"export", "p.gpkg", c.given};
    if (c.expected) command.insert(command.end(), {"--to", c.expected});
    const auto run = box.oxhost(command);
    ASSERT_EQ(run.code, 0) << run.error;
    auto found = vertices(table(box, c.given, "-dim XY -lco GEOMETRY=AS_WKT -t_srs EPSG:4326"));
    auto expected = places;
    for (vertex& each : expected) each.resize(2);
    expect_near(found, expected, 1e-8);  // a shift and its inverse differ by half a millimetre
    const bool coded = c.expected && std::string(c.expected).starts_with("EPSG");
    const std::string seen = said(box, std::string("gdalsrsinfo -o epsg ") + c.given);
    EXPECT_EQ(seen.find("EPSG:32640") != seen.npos, coded) << seen;
    EXPECT_TRUE(c.expected || !box.json(c.given).contains("crs"));
}

TEST(Export, ShapefileComesWithTheProjectionFileThatIsSaved) {
    const sandbox box;
    make_survey(box);
    ASSERT_EQ(box.oxhost({"export", "p.gpkg", "o.shp", "--to", gauss_kruger_10}).code, 0);
    ASSERT_EQ(box.oxhost({"project", gauss_kruger_10, "--save", "saved.prj", "--quiet"}).code, 0);
    EXPECT_EQ(box.bytes("o.prj"), box.bytes("saved.prj"));
    EXPECT_NE(box.bytes("o.prj"), "");
    EXPECT_EQ(box.bytes("o.prj.pj4"), std::string(gauss_kruger_10) + '\n');
}

TEST(Export, ShapefileTellsWhatItCannotHold) {
    const sandbox box;
    make_survey(box);
    const auto run = box.oxhost({"export", "p.gpkg", "o.shp"});
    for (const char* line :
         {"(depth_to_basement = depth_to_b, depth_to_moho = depth_to_m, source_layer = source_lay)",
          "boolean fields written as 0 and 1: 1 (open)", "date-time fields written as text: 1 (logged)",
          "lines without heights, written at height 0: 2", "lines without measures, written at measure 0: 1"})
        EXPECT_NE(run.error.find(line), run.error.npos) << line << '\n' << run.error;
    const std::string first = said(box, "ogrinfo -q -al -fid 0 o.shp");
    for (const char* value : {"depth_to_b (Real) = 1234.567890123", "depth_to_m (Integer64) = 5000000000",
                              "LINESTRING ZM (56.9 55.0 100.5 0,"})
        EXPECT_NE(first.find(value), first.npos) << first;
}

struct layers_case {
    const char* name;
    std::vector<std::string> command;
    int code;
    const char* told;
    const char* layers;  ///< what ogrinfo lists, in the order of names
};

const std::vector<source_line> mixed{{"utm", utm40, {{500000, 6.1e6}, {500100, 6.1e6}}},
                                     {"gk", gauss_kruger_10, {{10500000, 6.1e6}, {10500100, 6.1e6}}},
                                     {"utm too", "+proj=utm +datum=WGS84 +zone=40", {{1e5, 6e6}, {2e5, 6e6}}},
                                     {"bare", "", {{1, 2}, {3, 4}}, false}};

TEST_CASES(
    ExportLayers, HoldOneProjectionEach, layers_case,
    {"OnePerProjection",
     {"o.gpkg"},
     0,
     "lines without projection: 1",
     "o_EPSG_32640 (Line String) o_no_projection (Line String) o_tmerc_57 (Line String) "},
    {"SameSystemWrittenTwice", {"o.gpkg", "--scene", "utm", "utm too"}, 0, "", "o (Line String) "},
    {"SeveralInOneLayer", {"o.shp", "--scene", "0", "1"}, 2, "the lines are in 2 projections", nullptr},
    {"BareAmongOthers", {"o.geojson"}, 2, "lines without projection: 1; leave them out", nullptr},
    {"BareAlone", {"o.geojson", "--scene", "bare"}, 0, "are not longitude and latitude", "o (Line String) "},
    {"BareToATarget", {"o.gpkg", "--scene", "bare", "--to", utm40}, 2, "to transform from: 1", nullptr}) {
    const sandbox box;
    box.make_project(mixed);
    std::vector<std::string> command{"export", "p.gpkg"};
    command.insert(command.end(), c.command.begin(), c.command.end());
    const auto run = box.oxhost(command);
    EXPECT_EQ(run.code, c.code);
    EXPECT_NE(run.error.find(c.told), run.error.npos) << run.error;
    EXPECT_EQ(std::count(run.error.begin(), run.error.end(), '\n'), *c.told ? 1 : 0) << run.error;
    const std::string listed =
        said(box, "ogrinfo -q " + c.command[0] + " | cut -d' ' -f2- | sort | tr '\\n' ' '");
    EXPECT_TRUE(!c.layers || listed == c.layers) << listed;
}

TEST(Export, GeoJsonKeepsALineAcrossTheDateLineWhole) {
    const sandbox box;
    constexpr auto utm60 = "+proj=utm +zone=60 +datum=WGS84 +units=m +no_defs";
    box.make_project({{"D", utm60, {{650000, 6200000}, {750000, 6200000}}}});
    const auto run = box.oxhost({"export", "p.gpkg", "o.geojson"});
    EXPECT_NE(run.error.find("across 180 degrees"), run.error.npos) << run.error;
    auto expected = moved(box, {{650000, 6200000}, {750000, 6200000}}, utm60, wgs84);
    expected[1][0] += 360;
    expect_near(vertices(table(box, "o.geojson", "-lco GEOMETRY=AS_WKT")), expected, 1e-9);
}

}  // namespace
}  // namespace oxhost_test
