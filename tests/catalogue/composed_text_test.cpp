/// Texts composed of the rows: PROJ takes them, and the projection dialog gives them back unchanged.

#include <gtest/gtest.h>

#include <map>

#include "catalogue_tables.h"
#include "proj_objects.h"
#include "projection/proj_params.h"

namespace catalogue_test {
namespace {

const ox::Tox_pj_datum& wgs84() { return *find_datum_by_code(built().datums, "WGS84"); }

/// What the projection dialog makes of a text that it is opened on and confirmed with.
struct confirmed {
    std::string text;
    std::string projection;  ///< name of the record that the text was taken for
    std::int32_t zone;
};

confirmed through_dialog(const std::string& text) {
    static ox::dialog::projection_model model;  // classification forgets the text before
    static ox::element::proj_params group(model);
    model.classify(text);
    group.show_text();
    return {model.compose(group.values(), group.zone()), model.current() ? model.current()->name : "",
            group.zone()};
}

confirmed expect_unchanged(const std::string& text) {
    EXPECT_TRUE(crs_of_text(text)) << text;
    const auto result = through_dialog(text);
    EXPECT_EQ(result.text, text);
    return result;
}

TEST(CatalogueComposedTexts, OfUsualProjectionsComeBackUnchangedAndProject) {
    std::map<std::string, std::string> renamed;
    for_each_usual([&](const auto& record, const auto&) {
        const auto text = compose(record, plausible_inputs(record), &wgs84(), &ellps_of(wgs84()));
        if (const auto taken_for = expect_unchanged(text).projection; taken_for != record.name)
            renamed[record.name] = taken_for;
        const double longitude = record.lon_0.has_value ? record.lon_0.value : 45;
        const double latitude = record.lat_0.has_value ? record.lat_0.value * 0.98
                                : record.south.used    ? -80
                                                       : 51;
        EXPECT_TRUE(project(crs_of_text(text).get(), longitude + 1, latitude)) << record.name << ": " << text;
    });
    // Nothing in a text tells them apart.
    EXPECT_EQ(renamed,
              (std::map<std::string, std::string>{{"Gauss-Kruger (any meridian)", "Transverse Mercator"}}));
}

/// Were numbers taken for another datum's, PROJ would take other numbers or a grid for its name.
TEST(CatalogueComposedTexts, OfDatumsComeBackUnchangedAndKeepTheirNumbers) {
    for_each_datum([](const auto& datum, const auto&) {
        expect_unchanged(compose(geographic(), {}, &datum, &ellps_of(datum)));
        const auto* found = find_datum_by_params(built().datums, datum.ellps_id, datum.towgs84());
        EXPECT_TRUE(found->code.empty() || found->code == "WGS84" || found == &datum) << datum.name;
    });
}

TEST(CatalogueComposedTexts, OfEllipsoidsComeBackUnchanged) {
    const ox::Tox_pj_datum no_shift;
    for_each(built().ellps, built().sources.ellipsoids, [&](const auto& ellps, const auto&) {
        // A datum is always current, so a text without shift comes back with one: of zeros, or WGS 84's.
        expect_unchanged(through_dialog(compose(geographic(), {}, &no_shift, &ellps)).text);
    });
}

TEST(CatalogueComposedTexts, OfZonesAreRecognisedWithTheirZone) {
    for_each_zone([](const auto& record, const auto&, const auto& datum) {
        const auto text = compose(record, {}, &datum, &ellps_of(datum));
        const auto result = expect_unchanged(text);
        EXPECT_EQ(result.projection, record.name) << text;
        EXPECT_EQ(result.zone, record.zone.value) << text;
    });
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

}  // namespace
}  // namespace catalogue_test
