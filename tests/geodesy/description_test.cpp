#include "geodesy/description.h"

#include "geodesy/warnings.h"
#include "texts.h"

namespace oxhost {
namespace {

TEST(Description, SaysWhatATextMeans) {
    EXPECT_EQ(
        describe(texts::zone7, language::english),
        "Projection: Gauss-Krüger, zone 7\n"
        "Parameters: central meridian 39°, latitude of origin 0°, scale factor 1, false easting 7500000 m, "
        "false northing 0 m\n"
        "Ellipsoid: Krassowsky 1940 (a = 6378245 m, 1/f = 298.3)\n"
        "Datum: shift to WGS 84: 23.57,-140.95,-79.8,0,0.35,0.79,-0.22\n"
        "Units: metres");
    EXPECT_EQ(describe(texts::krass, language::russian),
              "Проекция: Долгота и широта\n"
              "Эллипсоид: Красовского 1940 (a = 6378245 м, 1/f = 298.3)\n"
              "Датум: не задан: переход к WGS 84 неизвестен\n"
              "Единицы: градусы");
}

TEST(Description, ShortOnesFitOneLine) {
    const std::array<std::string, 3> cases[] = {
        {"", "Projection is not defined", "Проекция не определена"},
        {texts::refused, "Invalid projection: utm: Invalid value for zone",
         "Неверная проекция: utm: Invalid value for zone"},
        {"+proj=tmerc +lon_0=-171 +x_0=32500000 +ellps=krass", "Gauss-Krüger, zone 32, Krassowsky 1940",
         "Гаусса – Крюгера, зона 32, Красовского 1940"},
        {"+proj=tmerc +lon_0=39 +x_0=6500000 +ellps=krass", "Transverse Mercator, 39°, Krassowsky 1940",
         "Поперечная Меркатора, 39°, Красовского 1940"},
        {"+proj=wintri +R=6371000", "Winkel Tripel, own ellipsoid", "Winkel Tripel, свой эллипсоид"}};
    for (const auto& [text, english, russian] : cases) {
        EXPECT_EQ(short_description(text, language::english), english);
        EXPECT_EQ(short_description(text, language::russian), russian);
    }
}

using lines = std::vector<std::string>;

TEST(Warnings, AboutOneText) {
    const point moscow{37.6, 55.75};
    const auto english = [&](const std::string& text) {
        return warnings_for(text, language::english, moscow);
    };
    for (const std::string& text :
         {std::string(), texts::zone7, texts::zone7_base, std::string("+proj=utm +zone=37 +ellps=GRS80")})
        EXPECT_EQ(english(text), lines{});
    EXPECT_EQ(english("+proj=lcc +lat_1=50 +lat_2=60 +datum=WGS84 +no_such=1 +south +approx"),
              lines{"PROJ does not know the key \"+no_such\" and ignores it"});
    EXPECT_EQ(english("+proj=utm +zone=99 +datum=WGS84 +typo"),
              lines{"PROJ does not know the key \"+typo\" and ignores it"});
    EXPECT_EQ(
        english("+proj=longlat +ellps=krass +towgs84=23.57,-140.95,-79.8,0,-0.35,-0.79,-0.22"),
        lines{"the towgs84 rotations are those of Pulkovo 1942 to WGS 84 (20) (EPSG:5044) with the opposite "
              "signs: coordinate frame convention instead of position vector"});

    const auto missing = english(texts::krass);
    ASSERT_EQ(missing.size(), 1U);
    int metres = 0;
    ASSERT_EQ(std::sscanf(missing[0].c_str(), "no datum shift: off by about %d m here", &metres), 1)
        << missing[0];
    EXPECT_NEAR(metres, 120, 10);  // Pulkovo 1942 in Moscow: some 118 m
    EXPECT_EQ(warnings_for(texts::krass, language::russian, moscow)[0],
              "нет перехода к датуму WGS 84: ошибка здесь около " + std::to_string(metres) + " м");
}

TEST(Warnings, AboutALine) {
    const polyline moscow{{37.6, 55.7}, {37.7, 55.8}};
    const auto of_pair = [&](const std::string& from, const std::string& to, const polyline& line) {
        return warnings_for(from, to, line, language::english);
    };
    EXPECT_EQ(of_pair(texts::wgs84, texts::utm37, moscow), lines{});
    EXPECT_EQ(of_pair(texts::krass, "+proj=utm +zone=37 +ellps=krass", moscow), lines{})
        << "no shift is needed";
    const auto no_shift = of_pair(texts::krass, texts::utm37, moscow);
    ASSERT_EQ(no_shift.size(), 1U);
    EXPECT_TRUE(no_shift[0].starts_with("source: no datum shift: ")) << no_shift[0];

    const auto none = of_pair(texts::wgs84, "+proj=gnom +lat_0=90 +datum=WGS84", {{39, 55}, {39, -10}});
    ASSERT_EQ(none.size(), 1U);
    EXPECT_TRUE(none[0].starts_with("target: the line cannot be drawn there: vertex 1:")) << none[0];
}

}  // namespace
}  // namespace oxhost
