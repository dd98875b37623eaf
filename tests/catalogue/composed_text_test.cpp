/// Texts composed of the rows: PROJ takes them, and the catalogue finds the row again.

#include <gtest/gtest.h>

#include <map>

#include "catalogue/catalogue_tables.h"
#include "catalogue/proj_objects.h"
#include "support/text.h"

namespace catalogue_test {
namespace {

/// Row, and the row that its text comes back to.
using names = std::map<std::string, std::string>;

const ox::Tox_pj_datum& wgs84() { return *find_datum_by_code(built().datums, "WGS84"); }

ox::Tox_proj4_params parsed(const std::string& text) {
    ox::Tox_proj4_params params;
    params.set_text(text);
    params.parse();
    return params;
}

TEST(CatalogueComposedTexts, OfUsualProjectionsComeBackUnchanged) {
    // Not told apart by what a text carries.
    const names renamed{{"Gauss-Kruger (any meridian)", "Transverse Mercator"}};
    names seen;
    for (std::size_t row = 0; row < built().usual.size(); ++row) {
        const auto& record = built().usual[row];
        const auto text = compose(record, plausible_inputs(record), &wgs84(), &ellps_of(wgs84()));
        const auto params = parsed(text);
        const auto* found =
            match_proj4(built().usual, {params.proj.value(), params.lat_0.get().value_or(0),
                                        params.lat_1.present, params.lat_2.present, params.lat_ts.present,
                                        params.k_0.present, params.south.get().value_or(false)});
        ASSERT_TRUE(found) << text;
        EXPECT_EQ(compose(*found, params, &wgs84(), &ellps_of(wgs84())), text);
        if (found != &record) seen[record.name] = found->name;
    }
    EXPECT_EQ(seen, renamed);
}

TEST(CatalogueComposedTexts, OfUsualProjectionsProject) {
    for (std::size_t row = 0; row < built().usual.size(); ++row) {
        const auto& record = built().usual[row];
        const auto text = compose(record, plausible_inputs(record), &wgs84(), &ellps_of(wgs84()));
        const double longitude = record.lon_0.has_value ? record.lon_0.value : 45;
        const double latitude = record.lat_0.has_value ? record.lat_0.value * 0.98
                                : record.south.used    ? -80
                                                       : 51;
        EXPECT_TRUE(project(crs_of_text(text).get(), longitude + 1, latitude)) << record.name << ": " << text;
    }
}

TEST(CatalogueComposedTexts, OfDatumsComeBackUnchanged) {
    // Equal numbers on one ellipsoid: the first name answers for all.
    const names renamed{
        {"GDA94", "ETRS89"}, {"JGD2000", "ETRS89"}, {"NZGD2000", "ETRS89"}, {"SIRGAS 2000", "ETRS89"}};
    names seen;
    ox::Tox_pj_proj geographic;
    geographic.proj = "longlat";
    for (std::size_t row = 0; row < built().datums.size(); ++row) {
        const auto& datum = built().datums[row];
        const auto text = compose(geographic, {}, &datum, &ellps_of(datum));
        EXPECT_TRUE(crs_of_text(text)) << text;
        const auto params = parsed(text);
        const auto* ellps = params.ellps.present ? find_ellps_by_code(built().ellps, params.ellps.value())
                                                 : find_ellps_by_axes(built().ellps, params.a.get(),
                                                                      params.b.get(), params.rf.get());
        ASSERT_TRUE(ellps) << text;
        const auto* found = params.datum.present
                                ? find_datum_by_code(built().datums, params.datum.value())
                                : find_datum_by_params(built().datums, ellps->id, params.towgs84.value());
        ASSERT_TRUE(found) << text;
        EXPECT_EQ(compose(geographic, {}, found, ellps), text);
        if (found != &datum) seen[datum.name] = found->name;
    }
    EXPECT_EQ(seen, renamed);
}

TEST(CatalogueComposedTexts, OfEllipsoidsFindTheirAxesAgain) {
    // Defined in feet: their axes in metres have more digits than a text.
    const names renamed{{"Clarke 1858", "Clarke 1858 (12 digits)"},
                        {"Clarke 1866 Michigan", "Clarke 1866 Michigan (12 digits)"},
                        {"Clarke 1880", "Clarke 1880 (12 digits)"},
                        {"Everest (1830 Definition)", "Everest (1830 Definition) (12 digits)"}};
    names seen;
    ox::Tox_pj_proj geographic;
    geographic.proj = "longlat";
    for (std::size_t row = 0; row < built().ellps.size(); ++row) {
        const auto& ellps = built().ellps[row];
        const auto text = compose(geographic, {}, nullptr, &ellps);
        EXPECT_TRUE(crs_of_text(text)) << text;
        if (!ellps.code.empty()) continue;
        const auto params = parsed(text);
        const auto* found =
            find_ellps_by_axes(built().ellps, params.a.get(), params.b.get(), params.rf.get());
        ASSERT_TRUE(found) << text;
        EXPECT_EQ(compose(geographic, {}, nullptr, found), text);
        if (found != &ellps) seen[ellps.name] = found->name;
    }
    EXPECT_EQ(seen, renamed);
}

struct axes_case {
    const char* name;
    double a;
    std::optional<double> b, rf;
    const char* ellipsoid;
};

TEST(CatalogueAxes, OfCommonTextsAreKnown) {
    for (const auto& c : {axes_case{"Wgs84Rounded", 6378137, 6356752.3142, {}, "WGS 84"},
                          axes_case{"Grs80Rounded", 6378137, 6356752.3141, {}, "GRS 1980"},
                          axes_case{"KrassowskyRounded", 6378245, 6356863.0188, {}, "Krassowsky 1940"},
                          axes_case{"Pz90OfEpsg", 6378136, {}, 298.257839303, "PZ-90 (EPSG)"},
                          axes_case{"WebMapSphere", 6378137, 6378137, {}, "Sphere (R=6378137, web maps)"}}) {
        const auto* found = find_ellps_by_axes(built().ellps, c.a, c.b, c.rf);
        EXPECT_EQ(found ? found->name : "", c.ellipsoid) << c.name;
    }
}

/// A zonal text is known by its ellipsoid and towgs84; a datum with a code would be written without them.
TEST(CatalogueComposedTexts, OfZonesAreRecognised) {
    for (std::size_t row = 0; row < built().zonal.size(); ++row) {
        const auto& record = built().zonal[row];
        const auto* datum = find_datum_by_name(built().datums, record.datum.text);
        ASSERT_TRUE(datum) << record.name;
        EXPECT_TRUE(crs_of_text(compose(record, {}, datum, &ellps_of(*datum)))) << record.name;
        if (ox::equal_no_case(record.proj, "utm")) {
            EXPECT_EQ(
                find_proj_by_code_zone_south(built().zonal, "utm", record.zone.value, record.south.value),
                &record);
        } else {
            EXPECT_EQ(find_datum_by_params(built().datums, datum->ellps_id, datum->towgs84()), datum)
                << record.name;
            EXPECT_EQ(datum->code, "") << record.name;
        }
        EXPECT_EQ(find_proj_by_name_zone(built().zonal, record.name, record.zone.value), &record);
    }
}

/// Otherwise a text's numbers would turn into a named datum, for which PROJ takes other numbers or a grid.
TEST(CatalogueComposedTexts, WithNumbersKeepThem) {
    for (std::size_t row = 0; row < built().datums.size(); ++row) {
        const auto& datum = built().datums[row];
        const auto* found = find_datum_by_params(built().datums, datum.ellps_id, datum.towgs84());
        EXPECT_TRUE(found->code.empty() || found->code == "WGS84" || found == &datum) << datum.name;
    }
}

}  // namespace
}  // namespace catalogue_test
