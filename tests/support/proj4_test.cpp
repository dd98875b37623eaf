#include "projection/proj4_params.h"

#include "numeric_locale.h"
#include "projection/proj4_string.h"
#include "testing/case_name.h"

namespace {

std::string composed(std::string_view text) {
    ox::Tox_proj4_params params;
    params.set_text(text);
    params.parse();
    params.compose();
    return params.text();
}

// Composed texts without their tail.
TEST_CASES(Proj4Compose, NormalisesAndStaysThere, case_of<const char*>, {"Empty", "", ""},
           {"NothingKnown", "+wktext +no_defs", ""},
           {"GaussKruger",
            "+no_defs +units=m +ellps=krass +k=1 +y_0=0 +x_0=7500000 +lat_0=0 +lon_0=39 +proj=tmerc",
            "+proj=tmerc +lon_0=39 +lat_0=0 +x_0=7500000 +y_0=0 +k_0=1 +ellps=krass +units=m"},
           {"AllKeys",
            "+nadgrids=g +units=m +ellps=e +rf=298 +b=2 +a=3 +towgs84=1,2,3,4,5,6,7 +datum=d +alpha=1 "
            "+k_0=1 +south"
            "+lat_2=4 +lat_ts=5 +lat_1=6 +y_0=7 +x_0=8 +lat_0=9 +lonc=10 +lon_0=11 +zone=12 +proj=p",
            "+proj=p +zone=12 +lon_0=11 +lonc=10 +lat_0=9 +x_0=8 +y_0=7 +lat_1=6 +lat_ts=5 +lat_2=4 "
            "+south +k_0=1 "
            "+alpha=1 +datum=d +towgs84=1,2,3,4,5,6,7 +a=3 +b=2 +rf=298 +ellps=e +units=m +nadgrids=g"},
           {"FirstWins", "+proj=utm +proj=lcc", "+proj=utm"},
           {"KeyCaseAndBlanks", " + PROJ =\tutm\r\n+ZONE= 7.5 ", "+proj=utm +zone=7"},
           {"NoPlus", "proj=utm", "+proj=utm"}, {"ValueKeepsEqualsSigns", "+proj=a=b", "+proj=a=b"},
           {"EmptyProj", "+proj= +zone=3", "+zone=3"}, {"BadNumber", "+proj=utm +lat_0=abc", "+proj=utm"},
           {"NameBeforeAlias", "+k=2 +k_0=3", "+k_0=3"}, {"UnreadableNameHidesAlias", "+k_0=x +k=2", ""},
           {"RadiusAlone", "+R=6371000", "+a=6371000 +b=6371000"},
           {"RadiusBesideA", "+a=6378137 +R=6371000", "+a=6378137 +b=6371000"},
           {"SouthWhateverItSays", "+proj=utm +south=no", "+proj=utm +south"},
           {"ThreeShifts", "+towgs84=24,-123,-94", "+towgs84=24,-123,-94,0,0,0,0"},
           {"EightShifts", "+towgs84=1,2,3,4,5,6,7,8", "+towgs84=1,2,3,4,5,6,7"},
           {"BrokenShifts", "+towgs84=x,,3 , 4", "+towgs84=0,0,3,4,0,0,0"},
           {"NoShifts", "+towgs84=", "+towgs84=0,0,0,0,0,0,0"},
           {"SphereByCode", "+ellps=Sphere +towgs84=1,2,3", "+ellps=Sphere"},
           {"SphereByAxes", "+a=6371000 +b=6371000 +towgs84=1", "+a=6371000 +b=6371000"},
           {"SphereByFlattening", "+a=6371000 +rf=0 +towgs84=1", "+a=6371000 +rf=0"},
           {"NoSphereWithoutA", "+rf=0 +b=1 +towgs84=1", "+towgs84=1,0,0,0,0,0,0 +b=1 +rf=0"},
           {"TwelveDigits", "+lon_0=0.1 +lonc=1e-7 +lat_0=0.12345678901234 +x_0=5e5",
            "+lon_0=0.1 +lonc=1e-07 +lat_0=0.123456789012 +x_0=500000"}) {
    std::string expected = c.expected;
    if (!expected.empty()) expected += " +lon_wrap=45 +no_defs";
    EXPECT_EQ(composed(c.given), expected);
    EXPECT_EQ(composed(expected), expected);
}

TEST(Proj4, ACommaLocaleChangesNothing) {
    const numeric_locale comma;
    if (!comma.is_set()) GTEST_SKIP() << "no locale with a decimal comma on this machine";
    EXPECT_EQ(composed("+lon_0=39.5 +towgs84=23.92,-141.27"),
              "+lon_0=39.5 +towgs84=23.92,-141.27,0,0,0,0,0 +lon_wrap=45 +no_defs");
}

struct equality_case {
    const char *name, *a, *b;
    bool equal;
};

TEST_CASES(Proj4Equals, JudgesBothWays, equality_case, {"Case", "+proj=tmerc", "+proj=TMERC", true},
           {"CloseNumbers", "+lon_0=39", "+lon_0=39.0000005", true},
           {"FarNumbers", "+lon_0=39", "+lon_0=39.000002", false},
           {"Presence", "+proj=utm +south", "+proj=utm", false}, {"Zone", "+zone=3", "+zone=4", false},
           {"LastShift", "+towgs84=1,2,3", "+towgs84=1,2,3,0,0,0,1", false},
           {"GridsDoNotCount", "+nadgrids=a", "+nadgrids=b", true}) {
    ox::Tox_proj4_string a, b;
    a.assign(c.a);
    b.assign(c.b);
    EXPECT_EQ(a.params.equals(b.params), c.equal);
    EXPECT_EQ(b.params.equals(a.params), c.equal);
}

TEST(Proj4, LatlongDropsTheProjectionAndKeepsTheDatum) {
    ox::Tox_proj4_string text;
    text.assign("+proj=LATLONG +lon_0=3 +south +k=2 +units=m +datum=d +rf=1 +ellps=e");
    EXPECT_TRUE(text.params.is_latlong());
    text.params.set_latlong();
    EXPECT_EQ(text.result(), "+proj=longlat +datum=d +rf=1 +ellps=e +lon_wrap=45 +no_defs");
    EXPECT_EQ(text.current_text(), text.result());
    EXPECT_FALSE(text.modified());
    text.params.clear();
    EXPECT_EQ(text.params.rf.value(), 1.0);
    EXPECT_EQ(text.result(), "");
}

TEST(Proj4, LambertParallelsAreCompleted) {
    EXPECT_EQ(ox::Tox_proj4_string::normalize("+proj=LCC +lat_1=45"),
              "+proj=LCC +lat_0=45 +lat_1=45 +lat_2=45 +no_defs");
    EXPECT_EQ(ox::Tox_proj4_string::normalize("+proj=lcc +lat_0=1"), "+proj=lcc +lat_0=1 +lat_2=0 +no_defs");
    EXPECT_EQ(ox::Tox_proj4_string::normalize("+proj=tmerc +lat_1=45"), "+proj=tmerc +lat_1=45 +no_defs");
    ox::Tox_proj4_string text;
    text.assign("+proj=lcc +lat_1=45");
    EXPECT_TRUE(text.complete_lcc());
    EXPECT_TRUE(text.modified());
    EXPECT_FALSE(text.complete_lcc());
    text.reparse();
    EXPECT_FALSE(text.modified());
    EXPECT_FALSE(text.params.lat_2.present);
    EXPECT_EQ(text.initial_text(), "+proj=lcc +lat_1=45");
}

}  // namespace
