#include "geodesy/measure.h"

#include <stdexcept>

#include "geodesy/transformation.h"
#include "texts.h"

namespace oxhost {
namespace {

TEST(Measure, PublishedGeodesic) {
    // the example of GeographicLib's documentation: New York to London
    EXPECT_NEAR(ground_distance({-73.8, 40.6}, {-0.5, 51.6}), 5551759.400, 0.001);
    EXPECT_NEAR(*geodesic_length({{-73.8, 40.6}, {-0.5, 51.6}}, texts::wgs84), 5551759.400, 0.001);
}

TEST(Measure, LengthIsTheLinesWhateverItsProjection) {
    const polyline line{{38, 55}, {38.5, 55.2}, {39, 55}};
    const double length = *geodesic_length(line, texts::wgs84);
    for (const std::string& text : {texts::utm37, std::string("+proj=merc +datum=WGS84 +units=km"),
                                    std::string("+proj=laea +lat_0=50 +lon_0=20 +datum=WGS84")}) {
        polyline drawn = line;
        ASSERT_FALSE(transformation::between(texts::wgs84, text)->apply(drawn));
        EXPECT_NEAR(*geodesic_length(drawn, text), length, 0.001) << text;
    }
    EXPECT_EQ(geodesic_length({}, texts::utm37), 0);
    EXPECT_EQ(geodesic_length({{1e12, 0}, {0, 1e12}}, texts::utm37), std::nullopt);
    EXPECT_THROW(geodesic_length(line, texts::refused), std::invalid_argument);
}

TEST(Measure, ShiftTellsAReprojectionFromAnAssignment) {
    const polyline before{{7500000, 6100000}, {7510000, 6105000}};
    polyline after = before;
    ASSERT_FALSE(transformation::between(texts::zone7, texts::utm37)->apply(after));
    const auto reprojected = shift_between(before, texts::zone7, after, texts::utm37);
    ASSERT_TRUE(reprojected);
    EXPECT_LT(reprojected->ground, 0.001);
    EXPECT_NEAR(reprojected->datum, 118, 5);  // Pulkovo 1942 to WGS 84 near Moscow

    // another meridian is no shift: cs2cs, then geod from 48.85 N 2.337229166667 E, PROJ 9.1.1
    const std::string paris = "+proj=longlat +ellps=clrk80ign +pm=paris +towgs84=-168,-60,320";
    const auto from_paris =
        shift_between({{0, 48.85}}, paris, {{2.336505668628, 48.849930680239}}, texts::wgs84);
    EXPECT_NEAR(from_paris->datum, 53.6551, 0.001);

    // coordinates moved by 30 m under the same text
    polyline moved = before;
    moved[1].x += 30;
    EXPECT_NEAR(shift_between(before, texts::zone7, moved, texts::zone7)->ground, 30, 0.01);
    EXPECT_EQ(shift_between(before, texts::zone7, {before[0]}, texts::zone7), std::nullopt);
}

TEST(Measure, DistortionOfMercatorIsTheSecantOfLatitude) {
    const polyline at_60{{4000000, 8362698}, {4001000, 8362698}};  // ln tan(75 deg) of a sphere
    EXPECT_NEAR(*length_distortion(at_60, "+proj=merc +R=6350000"), 1 / 0.5 - 1, 0.01);
    EXPECT_EQ(length_distortion({{39, 55}, {40, 55}}, texts::wgs84), 0);
    EXPECT_NEAR(*length_distortion({{500000, 6100000}, {500000, 6101000}}, texts::utm37), 0.0004, 1e-6);
}

}  // namespace
}  // namespace oxhost
