#include "geodesy/crs.h"

#include <clocale>

#include "base/numbers.h"
#include "geodesy/crs_import.h"
#include "geodesy/transformation.h"
#include "texts.h"

namespace oxhost {
namespace {

struct pair_case {
    const char* name;
    std::string a, b;
    bool same;
};

const std::string krass_tm = "+proj=tmerc +ellps=krass +lon_0=39 +x_0=7500000";

TEST_CASES(Equality, JudgesTheCoordinateSystem, pair_case,
           {"Order", "+proj=utm +zone=37 +datum=WGS84", "+datum=WGS84 +zone=37 +proj=utm", true},
           {"NotationKeys", texts::utm37, "+proj=utm +zone=37 +datum=WGS84 +wktext +type=crs", true},
           {"LonWrap", texts::zone7, texts::zone7 + " +lon_wrap=45 +type=crs", true},
           {"LonWrapOfLongitudes", texts::wgs84, texts::wgs84 + " +lon_wrap=180", true},
           {"KAndK0", krass_tm + " +k=0.9996", krass_tm + " +k_0=0.99960", true},
           {"NumbersAsNumbers", krass_tm, "+proj=tmerc +ellps=krass +lon_0=39.0 +x_0=7.5e6", true},
           {"DefaultsWrittenOut", krass_tm, krass_tm + " +lat_0=0 +y_0=0 +k=1 +units=m", true},
           {"PlusIsOptional", "proj=utm zone=37 datum=WGS84", texts::utm37, true},
           {"UtmIsATransverseMercator", texts::utm37,
            "+proj=tmerc +lon_0=39 +k=0.9996 +x_0=500000 +datum=WGS84", true},
           {"EllipsoidByAxes", krass_tm, "+proj=tmerc +a=6378245 +rf=298.3 +lon_0=39 +x_0=7500000", true},
           {"Wgs84Datum", texts::wgs84, "+proj=longlat +ellps=WGS84 +towgs84=0,0,0", true},
           {"ThreeOfSeven", texts::krass + " +towgs84=25,-141,-78.5",
            texts::krass + " +towgs84=25.0,-141,-78.50,0,0,0,0", true},
           {"DatumByName", "+proj=longlat +datum=carthage",
            "+proj=longlat +ellps=clrk80ign +towgs84=-263,6,431", true},
           {"HeightsDoNotCount", texts::utm37, texts::utm37 + " +vunits=ft +geoidgrids=egm96_15.gtx", true},
           {"OtherShift", texts::krass + " +towgs84=25,-141,-78.5", texts::krass + " +towgs84=25,-141,-78.6",
            false},
           {"ShiftAgainstNone", texts::krass + " +towgs84=0,0,0", texts::krass, false},
           {"EllipsoidIsNoDatum", texts::wgs84, "+proj=longlat +ellps=WGS84 +no_defs", false},
           {"NearEllipsoids", "+proj=longlat +ellps=WGS84", "+proj=longlat +ellps=GRS80", false},
           {"OtherMeridian", krass_tm, "+proj=tmerc +ellps=krass +lon_0=39.0000005 +x_0=7500000", false},
           {"South", texts::utm37, texts::utm37 + " +south", false},
           {"Units", texts::utm37, "+proj=utm +zone=37 +datum=WGS84 +units=km", false},
           {"Axes", texts::utm37, texts::utm37 + " +axis=neu", false}, {"Empty", "", "  ", true},
           {"EmptyAgainstText", "", texts::wgs84, false},
           {"RefusedAlike", "+proj=nonsense +k=1", "+k_0=1.0 +proj=nonsense +no_defs", true},
           {"RefusedDifferent", "+proj=nonsense +k=1", "+proj=nonsense +k=2", false},
           {"RefusedAgainstGood", texts::refused, texts::utm37, false}) {
    const auto& [name, a, b, same] = c;
    EXPECT_EQ(equal(a, b), same) << a << "\n" << b;
    EXPECT_EQ(equal(b, a), same) << "the other way round";
    EXPECT_EQ(equal(a, b), same) << "when asked again";
    EXPECT_TRUE(equal(a, a));
}

TEST(Crs, NamesWhatIsWrong) {
    EXPECT_EQ(crs_of(texts::refused)->error, "utm: Invalid value for zone");
    EXPECT_EQ(crs_of("hello")->error, "no +proj= in the text");
    EXPECT_EQ(crs_of(" ")->error, "no projection");
    for (const char* text : {"+proj=geocent +datum=WGS84", "+proj=cart +ellps=GRS80", "+proj=nonsense"})
        EXPECT_TRUE(!crs_of(text)->valid() && crs_of(text)->error != "") << text;
}

TEST(Crs, CommaLocaleChangesNothing) {
#ifdef OX_TEST_LOCALES
    setenv("LOCPATH", OX_TEST_LOCALES, 1);
#endif
    const auto results = [](const std::string& unprepared) {
        polyline line{{39.5, 55.25}};
        transformation::between(texts::zone7_base,
                                "+proj=tmerc +lon_0=39.5 +k=0.9996 +x_0=0.25 +datum=WGS84" + unprepared)
            ->apply(line);
        return std::pair(line, import_crs("EPSG:28407"));
    };
    const auto expected = results("");
    if (!std::setlocale(LC_ALL, "de_DE.UTF-8")) GTEST_SKIP() << "no locale with a decimal comma";
    EXPECT_EQ(std::to_string(0.5), "0,500000");
    EXPECT_EQ(results(" +no_defs"), expected);
    EXPECT_EQ(number_text(parse_number("-79.8").value_or(0)), "-79.8");
    std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace oxhost
