#include "imported.h"
#include "testing/case_name.h"

namespace project_test {
namespace {

constexpr auto source_text = R"({"type": "FeatureCollection", "name": "lines", "features": [
{"type": "Feature", "properties": {"Name": "Own", "proj4": "+proj=utm +zone=40"},
 "geometry": {"type": "LineString", "coordinates": [[500000.25, 6200000.5, 120], [500100, 6200000, 130]]}},
{"type": "Feature", "properties": {"Name": "None", "proj4": "", "profile": false},
 "geometry": {"type": "LineString", "coordinates": [[1, 2], [3, 4]]}},
{"type": "Feature", "properties": {"Name": "Layer's"},
 "geometry": {"type": "MultiLineString", "coordinates": [[[60, 55], [61, 56]], [[62, 57], [63, 58]]]}},
{"type": "Feature", "properties": {}, "geometry": {"type": "LineString", "coordinates": [[0.1, 0.2], [0.3, 0.4]]}},
{"type": "Feature", "properties": {"Name": "Well"}, "geometry": {"type": "Point", "coordinates": [60, 55]}}]})";

TEST(Import, TakesCaptionsProjectionsAndParts) {
    const scratch_folder folder;
    write_bytes(folder / "s.geojson", source_text);
    import_options options;
    options.crs_text = [](std::string_view code) { return "text of " + std::string(code); };
    const imported read(folder / "s.geojson", options);
    const std::vector<new_scene> expected{
        {"Own", true, "+proj=utm +zone=40",
         section_line{{{500000.25, 6200000.5}, {500100, 6200000}}, {120, 130}}},
        {"None", false, "", polyline{{1, 2}, {3, 4}}},
        {"Layer's 1", true, "text of EPSG:4326", polyline{{60, 55}, {61, 56}}},
        {"Layer's 2", true, "text of EPSG:4326", polyline{{62, 57}, {63, 58}}},
        {"lines 3", true, "text of EPSG:4326", polyline{{0.1, 0.2}, {0.3, 0.4}}}};
    make_project(folder / "read.gpkg", read.scenes);
    expect_scenes(*project::open(folder / "read.gpkg", open_mode::read_only), expected);
    EXPECT_EQ(read.report.scenes, 5U);
    EXPECT_NE(read.report.losses.find(": 1"), std::string::npos) << read.report.losses;

    import_options forced;
    forced.proj4 = "forced";
    forced.not_profile = true;
    for (const new_scene& scene : imported(folder / "s.geojson", forced).scenes)
        EXPECT_TRUE(scene.proj4 == "forced" && !scene.profile);
    EXPECT_EQ(imported(folder / "s.geojson").scenes[2].proj4, "+proj=longlat +datum=WGS84 +no_defs");
}

/// GDAL's own tool writes the source; the import gives a text with what is expected. Eastings and longitudes
/// come first whatever the authority says.
TEST_CASES(ImportCrs, KeepsDatumAndAxes, case_of<const char*>, {"GaussKrueger", "EPSG:28407", "+x_0=7500000"},
           {"LatitudeFirst", "EPSG:4326", "+proj=longlat"}) {
    const scratch_folder folder;
    write_bytes(
        folder / "s.geojson",
        R"({"type": "Feature", "properties": {}, "geometry": {"type": "LineString", "coordinates": [[39, 55], [39, 56]]}})");
    for (const char* kind : {"gpkg", "shp", "gml"}) {
        const std::string source = folder / (std::string("t.") + kind);
        output_of("ogr2ogr -t_srs " + std::string(c.given) + " " + source + " " + (folder / "s.geojson"));
        const auto read = imported(source).scenes;
        ASSERT_EQ(read.size(), 1U) << kind;
        EXPECT_NE(read[0].proj4.find(c.expected), std::string::npos) << kind << read[0].proj4;
        const auto [x, y] = read[0].line->xy[0];
        EXPECT_TRUE(y > 6e6 ? x > 7.4e6 && x < 7.6e6 : x > 38 && x < 40 && y > 54 && y < 56)
            << kind << x << " " << y;
    }
}

}  // namespace
}  // namespace project_test
