#include "geodesy/transformation.h"

#include <array>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <tuple>

#include "texts.h"

namespace oxhost {
namespace {

void expect_near(const point& found, const point& expected, double tolerance) {
    EXPECT_NEAR(found.x, expected.x, tolerance);
    EXPECT_NEAR(found.y, expected.y, tolerance);
}

/// Where a point of one system lies in another.
point between(const std::string& from, const std::string& to, const point& at) {
    polyline line{at};
    EXPECT_FALSE(transformation::between(from, to)->apply(line)) << from << " to " << to;
    return line[0];
}

/// Points published with the formulas of the map projections (IOGP Guidance Note 7-2), geographic ones on
/// the ellipsoid of the projection, so that nothing but the projection is at work.
TEST(Transformation, MeetsPublishedPointsBothWays) {
    const std::tuple<std::string, point, point> cases[] = {
        {"+proj=tmerc +lat_0=49 +lon_0=-2 +k=0.9996012717 +x_0=400000 +y_0=-100000 +ellps=airy",
         point{0.5, 50.5}, point{577274.99, 69740.50}},
        {"+proj=lcc +lat_1=28.3833333333333 +lat_2=30.2833333333333 +lat_0=27.8333333333333 +lon_0=-99 "
         "+x_0=609601.219202438 +y_0=0 +ellps=clrk66 +units=us-ft",
         point{-96, 28.5}, point{2963503.91, 254759.80}},
        {"+proj=merc +lat_ts=42 +lon_0=51 +ellps=krass", point{53, 53}, point{165704.29, 5171848.07}},
        {"+proj=sterea +lat_0=52.1561605555556 +lon_0=5.38763888888889 +k=0.9999079 +x_0=155000 +y_0=463000 "
         "+ellps=bessel",
         point{6, 53}, point{196105.283, 557057.739}}};
    for (const auto& [projection, geographic, projected] : cases) {
        SCOPED_TRACE(projection);
        const std::string base = "+proj=longlat +ellps=" + proj4_text(projection).value("ellps").value();
        expect_near(between(base, projection, geographic), projected, 0.01);
        expect_near(between(projection, base, projected), geographic, 2e-7);
    }
}

/// A datum shift written out: ellipsoid to Cartesian at height 0, seven parameters, and back.
namespace closed_form {

using vector = std::array<double, 3>;
using parameters = std::array<double, 7>;
constexpr double degree = std::numbers::pi / 180;

vector cartesian(point at, double a, double rf) {
    const double e2 = (2 - 1 / rf) / rf;
    const double phi = at.y * degree, lambda = at.x * degree;
    const double n = a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
    return {n * std::cos(phi) * std::cos(lambda), n * std::cos(phi) * std::sin(lambda),
            n * (1 - e2) * std::sin(phi)};
}

vector position_vector(const vector& v, const parameters& t) {
    const double second = degree / 3600;
    const double rx = t[3] * second, ry = t[4] * second, rz = t[5] * second, m = 1 + t[6] * 1e-6;
    return {t[0] + m * (v[0] - rz * v[1] + ry * v[2]), t[1] + m * (rz * v[0] + v[1] - rx * v[2]),
            t[2] + m * (-ry * v[0] + rx * v[1] + v[2])};
}

point geographic(const vector& v, double a, double rf) {
    const double e2 = (2 - 1 / rf) / rf;
    const double p = std::hypot(v[0], v[1]);
    double phi = std::atan2(v[2], p * (1 - e2));
    for (int i = 0; i < 20; ++i) {
        const double n = a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
        phi = std::atan2(v[2] + e2 * n * std::sin(phi), p);
    }
    return {std::atan2(v[1], v[0]) / degree, phi / degree};
}

}  // namespace closed_form

struct shift_case {
    const char* name;
    std::string source;
    double a, rf;
    closed_form::parameters shift;
    point at;
};
constexpr closed_form::parameters pulkovo{23.57, -140.95, -79.8, 0, 0.35, 0.79, -0.22};

TEST_CASES(Shift, IsTheClosedFormHelmert, shift_case,
           {"Pulkovo", texts::zone7_base + " +lon_wrap=45", 6378245, 298.3, pulkovo, {39, 55}},
           {"ThreeParameters",
            "+proj=longlat +ellps=intl +towgs84=-84.87,-96.49,-116.95",
            6378388,
            297,
            closed_form::parameters{-84.87, -96.49, -116.95},
            {2.1309658, 53.8101564}},
           // PROJ would look for a grid, of which some of its packages bring a copy
           {"PotsdamByName",
            "+proj=longlat +datum=potsdam",
            6377397.155,
            299.1528128,
            closed_form::parameters{598.1, 73.7, 418.2, 0.202, 0.045, -2.455, 6.7},
            {9, 50}},
           {"OsgbByName",
            "+proj=longlat +datum=OSGB36",
            6377563.396,
            299.3249646,
            closed_form::parameters{446.448, -125.157, 542.060, 0.1502, 0.2470, 0.8421, -20.4894},
            {-1.5, 53}}) {
    const auto& [name, source, a, rf, shift, at] = c;
    const point expected = closed_form::geographic(
        closed_form::position_vector(closed_form::cartesian(at, a, rf), shift), 6378137, 298.257223563);
    const point found = between(source, texts::wgs84, at);
    expect_near(found, expected, 1e-11);
    // and back, to the millimetre that the omitted height is worth
    expect_near(between(texts::wgs84, source, found), at, 2e-8);
}

TEST(Shift, OfBothSidesWithoutHeight) {
    using namespace closed_form;
    const parameters ed50{87, 98, 121};  // from WGS 84
    const point expected = geographic(
        position_vector(position_vector(cartesian({39, 55}, 6378245, 298.3), pulkovo), ed50), 6378388, 297);
    expect_near(
        between(texts::zone7_base, "+proj=longlat +ellps=intl +towgs84=-87,-98,-121 +lon_wrap=45", {39, 55}),
        expected, 1e-11);
}

TEST(Transformation, WrapsLongitudesWhereTheTextSaysSo) {
    polyline line{{-100, 40}, {39, 55}, {-135, 0}, {-134.75, 0}};
    ASSERT_FALSE(transformation::between(texts::wgs84, texts::wgs84 + " +lon_wrap=45")->apply(line));
    EXPECT_EQ(line, (polyline{{-100, 40}, {39, 55}, {-135, 0}, {-134.75, 0}}));
    ASSERT_FALSE(transformation::between(texts::wgs84, texts::wgs84 + " +lon_wrap=180")->apply(line));
    EXPECT_EQ(line, (polyline{{260, 40}, {39, 55}, {225, 0}, {225.25, 0}}));
}

TEST(Transformation, IsNotNeededBetweenSpellingsOfOneSystem) {
    EXPECT_FALSE(
        transformation::between(texts::utm37, "+proj=utm +zone=37 +datum=WGS84 +lon_wrap=45")->is_needed());
    EXPECT_TRUE(transformation::between(texts::zone7, texts::utm37)->is_needed());
}

TEST(Transformation, FailsAsAWholeAndNamesTheVertex) {
    const std::tuple<std::string, std::string, point> cases[] = {
        {texts::utm37, texts::wgs84, point{NAN, 6100000}},
        {texts::utm37, texts::wgs84, point{500000, HUGE_VAL}},
        {texts::wgs84, texts::utm37, point{39, 91}},
        {texts::wgs84, texts::krass, point{39, -90.1}},
        {texts::wgs84, "+proj=gnom +lat_0=90 +lon_0=39 +datum=WGS84", point{39, -10}},
        {texts::utm37, texts::wgs84, point{1e12, 1e12}}};
    for (const auto& [source, target, bad] : cases) {
        const polyline before{{39, 55}, {39.5, 55.5}, bad, {40, 56}, bad};
        polyline line = before;
        const auto failure = transformation::between(source, target)->apply(line);
        ASSERT_TRUE(failure) << source << " to " << target << ": " << line[2].x << ' ' << line[2].y;
        EXPECT_EQ(failure->vertex, 2U);
        EXPECT_EQ(failure->at.y, bad.y);
        EXPECT_NE(failure->reason, "");
        for (std::size_t i : {0U, 1U, 3U}) EXPECT_EQ(line[i], before[i]) << "vertex " << i << " was changed";
    }
}

TEST(Transformation, RefusesTextsWithTheirReason) {
    for (const auto& text : {std::string(), texts::refused, std::string("EPSG:4326")}) {
        EXPECT_THROW(transformation::between(texts::wgs84, text), std::invalid_argument) << text;
        EXPECT_THROW(transformation::between(text, texts::wgs84), std::invalid_argument) << text;
    }
    try {
        transformation::between(texts::wgs84, texts::refused);
    } catch (const std::invalid_argument& error) {
        EXPECT_EQ(std::string(error.what()),
                  "target projection \"" + texts::refused + "\": utm: Invalid value for zone");
    }
}

TEST(Transformation, TellsItsOperation) {
    const auto operation = transformation::between(texts::zone7, texts::utm37)->operation();
    EXPECT_EQ(operation.source_shift, "Pulkovo 1942 to WGS 84 (20) (EPSG:5044)");
    EXPECT_EQ(operation.target_shift, "");
    EXPECT_EQ(operation.accuracy, 3);  // published with EPSG:5044
    EXPECT_NE(operation.definition.find("helmert x=23.57"), std::string::npos) << operation.definition;
    EXPECT_EQ(transformation::between(texts::krass, texts::wgs84)->operation().accuracy, std::nullopt);
}

}  // namespace
}  // namespace oxhost
