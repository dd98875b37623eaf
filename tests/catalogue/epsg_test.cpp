/// Every row with an EPSG or PROJ source against what PROJ itself has under that name.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "catalogue_tables.h"
#include "proj_objects.h"
#include "support/numbers.h"

namespace catalogue_test {
namespace {

constexpr double millimetre = 0.001;

std::string printed(double value, int digits = 12) {
    std::string text;
    ox::append_general(text, value, digits);
    return text;
}

/// Equal, or equal to all digits of a text of 12 and more, for what PROJ computes from another unit.
void expect_number(const std::string& text, double value) {
    const double number = ox::scan_double(text).value();
    const auto digits =
        static_cast<int>(std::ranges::count_if(text, [](char c) { return c >= '0' && c <= '9'; }));
    EXPECT_TRUE(number == value || (digits >= 12 && printed(number, digits) == printed(value, digits)))
        << text << " instead of " << printed(value, 17);
}

TEST(CatalogueEllipsoids, AxesAreThoseOfEpsg) {
    for (const auto& record : built().sources.ellipsoids) {
        const auto code = code_after("EPSG:", record.source);
        if (!code) continue;
        SCOPED_TRACE(record.place + " " + record.source);
        const auto object = epsg(*code, PJ_CATEGORY_ELLIPSOID);
        double a = 0, b = 0, rf = 0;
        ASSERT_TRUE(proj_ellipsoid_get_parameters(PJ_DEFAULT_CTX, object.get(), &a, &b, nullptr, &rf));
        expect_number(record.text("A"), a);
        if (!record.text("B").empty()) expect_number(record.text("B"), b);
        if (!record.text("RF").empty()) expect_number(record.text("RF"), rf);
    }
}

TEST(CatalogueEllipsoids, HoldEveryCodeOfProjAsPublished) {
    std::size_t published_ones = 0, coded_rows = 0;
    for (const auto* published = proj_list_ellps(); published->id; ++published, ++published_ones) {
        SCOPED_TRACE(published->id);
        const auto* row = find_ellps_by_code(built().ellps, published->id);
        ASSERT_TRUE(row);
        const auto number = [](const std::string& text) {
            return ox::scan_double(text.substr(text.find('=') + 1));
        };
        EXPECT_EQ(row->a, number(published->major));
        EXPECT_EQ(published->ell[0] == 'b' ? row->b : row->rf, number(published->ell));
    }
    for (std::size_t i = 0; i < built().ellps.size(); ++i) coded_rows += !built().ellps[i].code.empty();
    EXPECT_EQ(coded_rows, published_ones) << "some code is no ellipsoid of PROJ, or stands twice";
}

/// The seven Position Vector numbers of an operation, in the units of towgs84; `exact` says which of them
/// are published in those units.
struct published_shift {
    std::array<double, 7> values{};
    std::array<bool, 7> exact;
};

published_shift shift_of(const PJ* operation) {
    static const double units[] = {1, M_PI / 180 / 3600, 1e-6};
    published_shift shift;
    shift.exact.fill(true);
    const char* method = "";
    proj_coordoperation_get_method_info(PJ_DEFAULT_CTX, operation, &method, nullptr, nullptr);
    const bool turned = std::string(method).find("Coordinate Frame") != std::string::npos;
    for (int i = 0; i < proj_coordoperation_get_param_count(PJ_DEFAULT_CTX, operation); ++i) {
        const char* code = "";
        double value = 0, factor = 0;
        proj_coordoperation_get_param(PJ_DEFAULT_CTX, operation, i, nullptr, nullptr, &code, &value, nullptr,
                                      &factor, nullptr, nullptr, nullptr, nullptr);
        // EPSG parameters 8605 to 8611: translations, rotations, scale difference.
        const int place = ox::scan_int(code).value_or(0) - 8605;
        if (place < 0 || place > 6) continue;
        const auto at = static_cast<std::size_t>(place);
        const double ratio = factor / units[at / 3];
        shift.exact[at] = std::abs(ratio - 1) < 1e-9;
        shift.values[at] = (turned && at / 3 == 1 ? -1 : 1) * value * (shift.exact[at] ? 1 : ratio);
    }
    return shift;
}

TEST(CatalogueDatums, NumbersEllipsoidAndSystemAreThoseOfTheEpsgOperation) {
    for_each_datum([](const auto& datum, const auto& made_of) {
        const auto code = code_after("EPSG:", made_of.source);
        if (!code) return;
        SCOPED_TRACE(datum.name + ", " + made_of.source);
        const auto operation = epsg(*code, PJ_CATEGORY_COORDINATE_OPERATION);
        ASSERT_TRUE(operation);
        const auto published = shift_of(operation.get());
        for (std::size_t i = 0; i < 7; ++i) {
            const double number = datum.towgs84()[i];
            EXPECT_TRUE(number == published.values[i] ||
                        (!published.exact[i] && printed(number) == printed(published.values[i])))
                << "number " << i << ": " << printed(number, 17) << " instead of "
                << printed(published.values[i], 17);
        }

        const proj_object crs(proj_get_source_crs(PJ_DEFAULT_CTX, operation.get()));
        const proj_object ellipsoid(proj_get_ellipsoid(PJ_DEFAULT_CTX, crs.get()));
        double a = 0, b = 0;
        ASSERT_TRUE(proj_ellipsoid_get_parameters(PJ_DEFAULT_CTX, ellipsoid.get(), &a, &b, nullptr, nullptr));
        const auto& ellps = ellps_of(datum);
        EXPECT_NEAR(ellps.a, a, millimetre);
        EXPECT_NEAR(ellps.has_b ? ellps.b : ellps.a * (1 - 1 / ellps.rf), b, millimetre);

        const auto datum_name = [](const PJ* of) {
            return std::string(
                proj_get_name(proj_object(proj_crs_get_datum_forced(PJ_DEFAULT_CTX, of)).get()));
        };
        ASSERT_FALSE(made_of.systems.empty());
        const auto system = epsg(made_of.systems.front().substr(5), PJ_CATEGORY_CRS);
        EXPECT_EQ(datum_name(system.get()), datum_name(crs.get()));
    });
}

TEST(CatalogueDatums, OfProjShiftAsTheirNamesDo) {
    for_each_datum([](const auto& datum, const auto& made_of) {
        const auto name = code_after("PROJ +datum=", made_of.source);
        if (!name) return;
        EXPECT_EQ(datum.code, *name);
        auto numbers = datum;
        numbers.code.clear();
        const auto shifted = [&](const ox::Tox_pj_datum& by) {
            const auto text = compose(geographic(), {}, &by, &ellps_of(datum)) + " +type=crs";
            const proj_object to_wgs84(proj_create_crs_to_crs(
                PJ_DEFAULT_CTX, text.c_str(), "+proj=longlat +datum=WGS84 +lon_wrap=45 +no_defs +type=crs",
                nullptr));
            EXPECT_TRUE(to_wgs84) << text;
            return proj_trans(to_wgs84.get(), PJ_FWD, proj_coord(10, 52, 0, 0)).xy;
        };
        EXPECT_NEAR(shifted(datum).x, shifted(numbers).x, 1e-9) << datum.name;
        EXPECT_NEAR(shifted(datum).y, shifted(numbers).y, 1e-9) << datum.name;
    });
}

/// Each on its own datum: a shift plays no part.
void expect_same_projection(const PJ* expected_crs, const std::string& text, double longitude,
                            double latitude) {
    SCOPED_TRACE(text);
    const auto expected = project(expected_crs, longitude, latitude);
    const auto actual = project(crs_of_text(text).get(), longitude, latitude);
    ASSERT_TRUE(expected && actual);
    EXPECT_NEAR(actual->x, expected->x, millimetre);
    EXPECT_NEAR(actual->y, expected->y, millimetre);
}

TEST(CatalogueZones, ProjectAsTheirEpsgSystemsAndHaveTheirDatum) {
    for_each_zone([](const auto& record, const auto& source, const auto& datum) {
        const auto code = code_after("EPSG:", source);
        if (!code) return;
        SCOPED_TRACE(source + ", zone " + record.zone_n.text);
        const auto crs = epsg(*code, PJ_CATEGORY_CRS);
        ASSERT_TRUE(crs);
        const double meridian = named_meridian(record);
        const auto middle = project(crs.get(), meridian, 0);
        ASSERT_TRUE(middle);
        EXPECT_NEAR(middle->x, record.x_0.used ? record.x_0.value : 500000, millimetre) << "another zone";
        expect_same_projection(crs.get(), compose(record, {}, nullptr, &ellps_of(datum)), meridian + 2,
                               record.south.used ? -33 : 55);

        const auto shift = code_after("EPSG:", built().sources.datums[datum.id - 1].source);
        if (!shift) return;
        const auto operation = epsg(*shift, PJ_CATEGORY_COORDINATE_OPERATION);
        const proj_object from(proj_get_source_crs(PJ_DEFAULT_CTX, operation.get()));
        const proj_object base(proj_crs_get_geodetic_crs(PJ_DEFAULT_CTX, crs.get()));
        EXPECT_STREQ(proj_get_name(from.get()), proj_get_name(base.get()));
    });
}

TEST(CatalogueUsualProjections, MeanWhatTheirSourceSays) {
    for_each_usual([](const auto& record, const auto& made_of) {
        const std::string& source = made_of.source;
        SCOPED_TRACE(source);
        if (const auto expected = code_after("EPSG method ", source)) {
            const auto crs = crs_of_text(compose(record, plausible_inputs(record), nullptr,
                                                 find_ellps_by_code(built().ellps, "GRS80")));
            const proj_object conversion(proj_crs_get_coordoperation(PJ_DEFAULT_CTX, crs.get()));
            const char* method = "";
            proj_coordoperation_get_method_info(PJ_DEFAULT_CTX, conversion.get(), nullptr, nullptr, &method);
            EXPECT_EQ(method, *expected) << record.name;
        } else if (const auto system = code_after("EPSG:", source)) {
            expect_same_projection(epsg(*system, PJ_CATEGORY_CRS).get(),
                                   compose(record, {}, nullptr, &ellps_of_system(source)),
                                   record.lon_0.value + 1, record.lat_0.value + 1);
        }
    });
}

}  // namespace
}  // namespace catalogue_test
