/// What is brought into a projection of the catalogue comes back.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "catalogue_tables.h"
#include "proj_objects.h"

namespace catalogue_test {
namespace {

constexpr double centimetre = 0.01;

struct area {
    double west, south, east, north;
};

/// Metres between places all over the area and what comes back of them, at worst.
double worst_return(const std::string& text, const area& within) {
    constexpr int steps = 16;
    const auto way = way_into(crs_of_text(text).get());
    if (!way) return HUGE_VAL;
    double worst = 0;
    for (int place = 0; place < (steps + 1) * (steps + 1); ++place) {
        const double longitude = std::lerp(within.west, within.east, place % (steps + 1) / double{steps});
        const double latitude = std::lerp(within.south, within.north, place / (steps + 1) / double{steps});
        const auto there = proj_trans(way.get(), PJ_FWD, proj_coord(longitude, latitude, 0, 0));
        const auto back = proj_trans(way.get(), PJ_INV, there).xy;
        const double east = std::remainder(back.x - longitude, 360) * std::cos(latitude * M_PI / 180);
        const double metres = std::hypot(east, back.y - latitude) * 111320;
        if (!std::isfinite(metres)) return HUGE_VAL;
        worst = std::max(worst, metres);
    }
    return worst;
}

/// Where a usual projection is used: the area of its EPSG system; around the origin it asks for; the world.
area area_of(const ox::Tox_pj_proj& record, const std::string& source, double degrees) {
    if (const auto system = code_after("EPSG:", source)) {
        area used{};
        proj_get_area_of_use(PJ_DEFAULT_CTX, epsg(*system, PJ_CATEGORY_CRS).get(), &used.west, &used.south,
                             &used.east, &used.north, nullptr);
        return used;
    }
    const auto inputs = plausible_inputs(record);
    const double longitude = record.lonc.used ? inputs.lonc.value() : inputs.lon_0.value();
    if (!record.lat_0.used && !record.lat_1.used && record.proj != "ups")
        return {longitude - 175, -85, longitude + 175, 85};
    const double latitude = record.lat_0.has_value ? record.lat_0.value
                            : record.lat_0.used    ? inputs.lat_0.value()
                            : record.lat_1.used    ? inputs.lat_1.value()
                            : record.south.used    ? -90
                                                   : 90;
    return {longitude - degrees, std::max(latitude - degrees, -89.0), longitude + degrees,
            std::min(latitude + degrees, 89.0)};
}

struct rough_projection {
    std::string_view name;
    double degrees;  ///< that it reaches from its origin
    double metres;   ///< that a place comes back within
};

constexpr rough_projection rough_ones[] = {
    {"Roussilhe Stereographic", 3, centimetre},  // a power series for one country
    {"Robinson", 30, 3},                         // interpolates a table, each way on its own
};

TEST(CatalogueRoundTrips, OfUsualProjectionsEndWhereTheyBegan) {
    for_each_usual([](const auto& record, const auto& made_of) {
        const auto* rough = std::ranges::find(rough_ones, record.name, &rough_projection::name);
        const auto& [name, degrees, metres] =
            rough == std::end(rough_ones) ? rough_projection{record.name, 30, centimetre} : *rough;
        const std::string& source = made_of.source;
        const auto text = compose(record, plausible_inputs(record), nullptr, &ellps_of_system(source));
        EXPECT_LE(worst_return(text, area_of(record, source, degrees)), metres) << text;
    });
}

TEST(CatalogueRoundTrips, OfZonesEndWhereTheyBegan) {
    for_each_zone([](const auto& record, const auto&, const auto& datum) {
        const double meridian = named_meridian(record), pole = record.south.used ? -80 : 84;
        const area zone{meridian - 3, std::min(pole, 0.0), meridian + 3, std::max(pole, 0.0)};
        EXPECT_LE(worst_return(compose(record, {}, nullptr, &ellps_of(datum)), zone), centimetre)
            << record.name << ' ' << record.zone_n.text;
    });
}

}  // namespace
}  // namespace catalogue_test
