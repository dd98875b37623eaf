#include "geodesy/crs_import.h"

#include "geodesy/measure.h"
#include "geodesy/transformation.h"
#include "texts.h"

namespace oxhost {
namespace {

struct import_case {
    const char* name;
    std::string code;
    point at;  // easting, northing or longitude, latitude
    bool north_first;
};

TEST_CASES(Import, KeepsTheDatumThatProjTakes, import_case,
           {"GaussKruger", "EPSG:28407", {7500000, 6100000}, true},
           {"Pulkovo1942", "EPSG:4284", {39, 55}, true},
           {"Pulkovo1995", "EPSG:20007", {7500000, 6100000}, true},
           {"Utm", "EPSG:32637", {500000, 6100000}, false},
           {"UtmSouth", "EPSG:32740", {500000, 6100000}, false},
           {"Lambert93", "EPSG:2154", {700000, 6600000}, false},
           {"BritishGrid", "EPSG:27700", {400000, 300000}, false},
           {"WorldMercator", "EPSG:3395", {4341460, 7300000}, false},
           {"WebMercator", "EPSG:3857", {4341460, 7300000}, false}, {"Wgs84", "EPSG:4326", {39, 55}, true}) {
    const auto& [name, code, at, north_first] = c;
    // PROJ's own way from the system by its code to WGS 84, without the texts of this host
    const pj_ptr way(proj_create_crs_to_crs(proj_context(), code.c_str(), "EPSG:4326", nullptr));
    const PJ_COORD own = proj_trans(
        way.get(), PJ_FWD, north_first ? proj_coord(at.y, at.x, 0, 0) : proj_coord(at.x, at.y, 0, 0));
    const auto text = import_crs(code);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("type"), std::string::npos) << *text;
    const auto imported = to_wgs84({at}, *text);
    ASSERT_TRUE(imported);
    EXPECT_LT(ground_distance(imported->front(), {own.xy.y, own.xy.x}), 0.001) << *text;
    EXPECT_EQ(epsg_code(*text), code);
}

TEST(Import, DeliversNothingForWhatIsNoPlaneSystem) {
    for (const char* identifier : {"", " ", "EPSG:999999", "4326", "4326a", "hello", "WGS", "EPSG:4978",
                                   "EPSG:5773", "EPSG:1314", "+proj=nonsense", "EPSG:", ":"}) {
        EXPECT_EQ(import_crs(identifier), std::nullopt) << '"' << identifier << '"';
    }
}

TEST(Import, TakesOtherSpellings) {
    EXPECT_EQ(import_crs("  epsg:4326\n"), texts::wgs84);
    EXPECT_EQ(import_crs("WGS 84 / UTM zone 37N"), texts::utm37);
    EXPECT_EQ(import_crs(" " + texts::zone7 + " "), texts::zone7);
}

TEST(EpsgCode, IsGivenOnlyWhenSure) {
    const std::string zone7 = "+proj=tmerc +lon_0=39 +x_0=7500000 +ellps=krass";
    EXPECT_EQ(epsg_code(texts::zone7), "EPSG:28407");
    // EPSG:15865, also published for Pulkovo 1942
    EXPECT_EQ(epsg_code(zone7 + " +towgs84=25,-141,-78.5,0,0.35,0.736,0"), "EPSG:28407");
    EXPECT_EQ(epsg_code(zone7 + " +towgs84=1,2,3"), std::nullopt);
    EXPECT_EQ(epsg_code(zone7), std::nullopt) << "several datums have this ellipsoid";
    EXPECT_EQ(epsg_code(""), std::nullopt);
    EXPECT_EQ(epsg_code("+proj=tmerc +lon_0=38.5 +datum=WGS84"), std::nullopt);
}

}  // namespace
}  // namespace oxhost
