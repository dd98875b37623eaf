#include "geodesy/crs_import.h"

#include "geodesy/measure.h"
#include "geodesy/text_difference.h"
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

struct placed_case {
    const char* name;
    std::string definition;
    point at;
    point expected;  // longitude, latitude from cs2cs, which had no grids
};

const std::string local_grid =
    R"(PROJCS["local",GEOGCS["GCS_Pulkovo_1942",DATUM["D_Pulkovo_1942",SPHEROID["Krasovsky_1940",6378245,298.3]],)"
    R"(PRIMEM["Greenwich",0],UNIT["Degree",0.0174532925199433]],PROJECTION["Transverse_Mercator"],)"
    R"(PARAMETER["False_Easting",250000],PARAMETER["False_Northing",-5912900.566],)"
    R"(PARAMETER["Central_Meridian",37.9833333],PARAMETER["Scale_Factor",1],)"
    R"(PARAMETER["Latitude_Of_Origin",0],UNIT["Meter",1]])";

TEST_CASES(ImportedPoints, LieWhereCs2csPutsThem, placed_case,
           {"OtherMeridian", "EPSG:27572", {600000, 2200000}, {2.336533608, 46.799948781}},
           {"MolodenskyBadekas", "EPSG:5174", {200000, 500000}, {127.000783539, 38.002746025}},
           {"ByWayOfAThirdDatum", "EPSG:3374", {600000, 6870000}, {-7.099525741, 61.948630627}},
           {"OddUnit", "EPSG:3167", {20000, 20000}, {101.614292279, 3.635792676}},
           {"LocalGridByTheNameOfItsDatum", local_grid, {250000, 250000}, {37.981474003, 55.588952192}},
           {"DatumBesideAnotherEllipsoid",
            "+proj=longlat +datum=OSGB36 +ellps=WGS84",
            {-2, 52},
            {-2.001410430, 52.000424861}},
           {"DatumBesideOtherAxes",
            "+proj=latlong +a=6378137 +rf=298.257223563 +datum=carthage +no_defs",
            {9, 36},
            {9.000522040, 36.001520913}},
           {"NumberWithAPlus",
            "+proj=tmerc +lon_0=37.9833333 +x_0=2.5e+05 +y_0=-5912900.566 +ellps=krass "
            "+towgs84=23.57,-140.95,-7.98e+01,0,0.35,0.79,-0.22",
            {250000, 250000},
            {37.981474003, 55.588952192}}) {
    const auto text = import_crs(c.definition);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("e+"), std::string::npos) << *text;
    const auto placed = to_wgs84({c.at}, *text);
    ASSERT_TRUE(placed);
    EXPECT_LT(ground_distance(placed->front(), c.expected), 0.01) << *text;
    EXPECT_FALSE(difference_of(c.definition, *text, language::english).changed()) << *text;
}

TEST(Import, OfALocalGridTakesTheShiftOfItsPlace) {
    std::string elsewhere = local_grid;
    elsewhere.replace(elsewhere.find("-5912900.566"), 12, "0");
    elsewhere.replace(elsewhere.find("37.9833333"), 10, "51");
    // EPSG:1303, Pulkovo 1942 to WGS 84 (14): the Caspian part of Kazakhstan
    const auto text = import_crs(elsewhere, point{51.5, 44});
    ASSERT_TRUE(text);
    EXPECT_EQ(proj4_text(*text).value("towgs84"), "43.822,-108.842,-119.585,1.455,-0.761,0.737,0.549");
}

struct told_case {
    const char* name;
    std::string definition, text, lost;
    double at_least, at_most;  // metres, from cs2cs at the corners and the middle of the area
};

TEST_CASES(Difference, IsTold, told_case,
           {"NoShift", "EPSG:28407", "+proj=tmerc +lon_0=39 +x_0=7500000 +ellps=krass", "datum shift", 120,
            135},
           {"ShiftOfZeros", "EPSG:28407",
            "+proj=tmerc +lon_0=39 +x_0=7500000 +ellps=krass +towgs84=0,0,0,0,0,0,0", "datum shift", 120,
            135},
           {"Unit", "EPSG:2225",
            "+proj=lcc +lat_0=39.3333333333333 +lon_0=-122 +lat_1=41.6666666666667 +lat_2=40 "
            "+x_0=2000000.0001016 +y_0=500000.0001016 +datum=NAD83",
            "unit (US survey foot)", 1e5, 1e8},
           {"Same", texts::utm37, "+proj=utm +zone=37 +datum=WGS84", "", 0, 0},
           {"Axes", texts::utm37 + " +axis=neu", texts::utm37, "keys (+axis=neu)", 0, 0},
           {"OtherShift", texts::zone7_base,
            "+proj=longlat +ellps=krass +towgs84=24.57,-140.95,-79.8,0,0.35,0.79,-0.22", "", 0.1, 1}) {
    const auto told = difference_of(c.definition, c.text, language::english);
    std::string lost;
    for (const auto& each : told.lost) lost += each;
    EXPECT_EQ(lost, c.lost);
    ASSERT_TRUE(told.metres);
    EXPECT_GE(*told.metres, c.at_least);
    EXPECT_LE(*told.metres, c.at_most);
    EXPECT_EQ(told.changed(), c.at_most > 0 || !lost.empty());
    EXPECT_EQ(difference_line(told, language::russian).empty(), !told.changed());
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
