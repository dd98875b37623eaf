#include <array>
#include <cstdio>
#include <memory>
#include <sstream>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace oxhost_test {
namespace {

/// What a command prints in the sandbox.
std::string output_of(const sandbox& box, const std::string& command) {
    const std::string there = "cd '" + box.path("").string() + "' && " + command + " 2>&1";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(there.c_str(), "r"), pclose);
    std::string text;
    std::array<char, 4096> part;
    while (const std::size_t count = fread(part.data(), 1, part.size(), pipe.get()))
        text.append(part.data(), count);
    return text;
}

/// Attributes and geometries as ogrinfo prints them, without the types and zones that formats differ in.
std::vector<std::string> features_of(const sandbox& box, const std::string& file) {
    std::istringstream printed(output_of(box, "ogrinfo -ro -q -al " + file));
    std::vector<std::string> lines;
    for (std::string line; std::getline(printed, line);) {
        const bool attribute = line.find(" = ") != line.npos;
        if (line.starts_with("  WKT") || line.starts_with("  Style")) continue;
        if (!line.starts_with("  ") || !(attribute || line.find("LINESTRING") != line.npos)) continue;
        if (attribute) line.erase(line.find(" ("), line.find(" = ") - line.find(" ("));
        if (line.ends_with("+00")) line.resize(line.size() - 3);
        if (attribute && line.find('.') != line.npos) line.resize(line.find_last_not_of('0') + 1);
        lines.push_back(line);
    }
    return lines;
}

void expect_all(const std::vector<std::string>& wanted, const std::vector<std::string>& found) {
    EXPECT_GE(wanted.size(), 15U);
    for (const std::string& each : wanted) EXPECT_TRUE(std::ranges::find(found, each) != found.end()) << each;
}

void write_survey(const sandbox& box) {
    box.write("survey.csv",
              "WKT,name,ship,shots,big,depth,ok,day,at\n"
              "\"LINESTRING ZM (60.25 55.5 120 1,60.5 55.75 130.5 2)\",L-1,Вега,120,12345678901234,0.1,1,"
              "2026/11/23,2026/11/23 21:30:00+00\n"
              "\"LINESTRING ZM (61.25 55.5 1 2,61.5 55.75 3 4)\",L-2,,7,,-0.25,0,,\n");
    box.write("survey.csvt", "WKT,String,String,Integer,Integer64,Real,Integer(Boolean),Date,DateTime\n");
}

/// GDAL's own tools write the source and tell what it holds.
TEST_CASES(ImportOf, KeepsAttributesHeightsAndMeasures, case_of<const char*>, {"GeoPackage", "gpkg", ""},
           {"Shapefile", "shp", ""}, {"MapInfo", "tab", ""}, {"GeoJson", "geojson", ""}, {"Csv", "csv", ""}) {
    const sandbox box;
    write_survey(box);
    const std::string source = std::string("survey.") + c.given;
    if (source != "survey.csv")
        output_of(box, "ogr2ogr -oo KEEP_GEOM_COLUMNS=NO -a_srs EPSG:4326 -nlt LINESTRING" +
                           std::string(source.ends_with("tab") ? "" : "ZM") + ' ' + source + " survey.csv");
    const auto run = box.oxhost({"import", "p.gpkg", source});
    ASSERT_EQ(run.code, 0) << run.error;
    const auto kept = features_of(box, "p.gpkg");
    expect_all(features_of(box, source), kept);
    EXPECT_TRUE(std::ranges::find(kept, "  source_layer = survey") != kept.end());

    ASSERT_EQ(box.oxhost({"import", "again.gpkg", "p.gpkg"}).code, 0);
    EXPECT_EQ(features_of(box, "again.gpkg"), kept) << "a project read again gains and loses nothing";
}

struct table_case {
    const char* name;
    std::vector<std::string> options;
    const char* table;
    const char* said;
};

constexpr auto rows =
    "1,2,500100,6200100,-20,Vega,3\n2,1,510000,6300000,-1,Nord,8\n1,x,500000,y,-10,Vega,4\n"
    "1,1,500000,6200000,-10,Vega,4\n1,10,500200,6200300,-30,Vega,5\n2,2,510001,6300002,-2,Nord,8\n";

TEST_CASES(PointTable, BecomesLines, table_case,
           {"CommonNames", {}, "line,sp,easting,northing,z,ship,gain\n", "order \"sp\", x \"easting\""},
           {"Russian", {}, "Профиль,Пикет,X,Y,Высота,ship,gain\n", "line \"Профиль\", order \"Пикет\""},
           {"Named",
            {"--line", "a", "--order", "b", "--x", "c", "--y", "d", "--z", "e"},
            "a,b,c,d,e,ship,gain\n",
            "line \"a\", order \"b\""}) {
    const sandbox box;
    box.write("nav.csv", std::string(c.table) + rows);
    std::vector<std::string> arguments{"import", "p.gpkg", "nav.csv", "--proj4", "EPSG:32640"};
    arguments.insert(arguments.end(), c.options.begin(), c.options.end());
    const auto run = box.oxhost(arguments);
    ASSERT_EQ(run.code, 0) << run.error;
    for (const std::string said : {c.said, "2 scenes", ": 1 (3)", "\"gain\" 1/2"})
        EXPECT_NE(run.out.find(said), std::string::npos) << said << '\n' << run.out;
    const std::string found = output_of(box, "ogrinfo -ro -q -al p.gpkg");
    for (const char* line : {"LINESTRING Z (500000 6200000 -10,500100 6200100 -20,500200 6200300 -30)",
                             "LINESTRING Z (510000 6300000 -1,510001 6300002 -2)", "ship (String) = Nord"})
        EXPECT_NE(found.find(line), std::string::npos) << line << '\n' << found;
}

TEST(PointTable, OfGeometriesKeepsTheirSystem) {
    const sandbox box;
    box.write("nav.csv", "id,sp,x,y,h\nA,2,500100,6200100,7\nA,1,500000,6200000,6\n");
    output_of(box,
              "ogr2ogr -oo X_POSSIBLE_NAMES=x -oo Y_POSSIBLE_NAMES=y -oo Z_POSSIBLE_NAMES=h -a_srs "
              "EPSG:32640 nav.gpkg nav.csv");
    const auto run = box.oxhost({"import", "p.gpkg", "nav.gpkg", "--line", "id"});
    ASSERT_EQ(run.code, 0) << run.error;
    EXPECT_NE(
        output_of(box, "ogrinfo -ro -q -al p.gpkg").find("LINESTRING Z (500000 6200000 6,500100 6200100 7)"),
        std::string::npos)
        << run.out;
    EXPECT_EQ(box.listed("proj4"), std::vector<std::string>{utm40});
}

/// All that is no plain line is counted by its reason, and nothing is lost without a word.
TEST(Import, TellsWhatItCannotKeep) {
    const sandbox box;
    box.write("mixed.csv",
              "WKT,name,profile\n"
              "\"COMPOUNDCURVE ((0 0,1 1),CIRCULARSTRING (1 1,2 2,3 1))\",arc,A-A'\n"
              "\"COMPOUNDCURVE ((0 0,5 5),(5 5,6 6))\",straight,no\n"
              "\"GEOMETRYCOLLECTION (MULTILINESTRING((2 2,3 3),(4 4,5 5)),POINT(1 1))\",mixed,\n"
              "\"POLYGON ((0 0,1 0,1 1,0 0))\",area,\n\"LINESTRING EMPTY\",empty,\n,nothing,\n");
    const auto run = box.oxhost({"import", "p.gpkg", "mixed.csv"});
    EXPECT_EQ(
        run.out.substr(0, run.out.find('\n')),
        "mixed.csv: 5 scenes; points skipped: 1, polygons skipped: 1, features without geometry skipped: 1, "
        "curves made into chords: 1, lines taken out of collections: 2, empty lines kept as empty: 1")
        << run.error;
    EXPECT_NE(run.out.find("profile > profile_1"), std::string::npos) << run.out;
    const std::string kept = output_of(box, "ogrinfo -ro -q -al p.gpkg");
    for (const char* line :
         {"profile_1 (String) = A-A'", "caption (String) = mixed 2", "LINESTRING (0 0,5 5,6 6)"})
        EXPECT_NE(kept.find(line), std::string::npos) << line << '\n' << kept;
}

TEST(Import, OfSeveralFilesIsAllOrNothing) {
    const sandbox box;
    write_survey(box);
    box.write("broken.geojson", "{\"type\": \"FeatureColl");
    for (const bool there : {false, true}) {
        if (there) box.make_project({{"Old", utm40, {{500000, 6200000}, {500100, 6200100}}}});
        const auto run = box.oxhost({"import", "p.gpkg", "survey.csv", "broken.geojson"});
        EXPECT_EQ(run.code, 66);
        EXPECT_EQ(run.out, "") << "nothing was stored";
        EXPECT_TRUE(run.error.starts_with("oxhost: broken.geojson: ")) << run.error;
        EXPECT_EQ(fs::exists(box.path("p.gpkg")), there);
        if (there) {
            EXPECT_EQ(box.listed("caption"), std::vector<std::string>{"Old"});
        }
    }
}

/// What the .prj cannot say comes from the file that was saved beside it.
TEST(Import, ReadsTheCompanionOfAShapefile) {
    const sandbox box;
    write_survey(box);
    output_of(box, "ogr2ogr -oo KEEP_GEOM_COLUMNS=NO -a_srs EPSG:4326 lines.shp survey.csv");
    ASSERT_EQ(box.oxhost({"project", gauss_kruger_10, "--save", "gk.prj", "--quiet"}).code, 0);
    fs::copy_file(box.path("gk.prj"), box.path("lines.prj"), fs::copy_options::overwrite_existing);
    fs::copy_file(box.path("gk.prj.pj4"), box.path("lines.prj.pj4"));
    ASSERT_EQ(box.oxhost({"import", "p.gpkg", "lines.shp"}).code, 0);
    EXPECT_NE(box.listed("proj4")[0].find("+towgs84=23.92,-141.27,-80.9,0,0.35,0.82,-0.12"),
              std::string::npos)
        << box.listed("proj4")[0];
}

}  // namespace
}  // namespace oxhost_test
