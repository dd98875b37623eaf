#include "support/catalogue.h"

#include <algorithm>
#include <cmath>

#include "dbf_builder.h"
#include "pieces.h"
#include "support/encodings.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"

namespace {

/// A table with rows like "ELLPS=krass|A=6378245".
template <std::size_t count>
std::string table_of(const std::array<std::string_view, count>& columns,
                     const std::vector<std::string>& rows) {
    auto table = dbf_builder::with_columns(columns, 24);
    for (const auto& row : rows) {
        std::vector<std::string> cells(count);
        for (const auto& piece : pieces(row)) {
            const auto sign = piece.find('=');
            const auto column = std::ranges::find(columns, std::string_view(piece).substr(0, sign));
            cells.at(static_cast<std::size_t>(column - columns.begin())) = piece.substr(sign + 1);
        }
        table.row(cells);
    }
    return table.write();
}

template <class List>
List loaded(int load(const std::string&, List&), const auto& columns, const std::vector<std::string>& rows) {
    List list;
    EXPECT_EQ(load(table_of(columns, rows), list), 0);
    EXPECT_EQ(list.size(), rows.size());
    return list;
}
auto ellipsoids(const std::vector<std::string>& rows) {
    return loaded(ox::load_ellps, ox::ellps_columns, rows);
}
auto projections(const std::vector<std::string>& rows) {
    return loaded(ox::load_projections, ox::projection_columns, rows);
}

TEST(CatalogueLoad, Ellipsoids) {
    const auto list = ellipsoids(
        {"ELLPS_ID= 7|ELLPS_NAME= * Krass *|ELLPS=krass|A=6378245.0|RF=298.3", "ELLPS_ID=x|A=***|B=1e3m"});
    EXPECT_EQ(list[0].id, 7u);
    EXPECT_EQ(list[0].name, "Krass");
    EXPECT_EQ(list[0].a, 6378245.0);
    EXPECT_TRUE(!list[0].has_b && list[0].has_rf && list[0].rf == 298.3);
    EXPECT_TRUE(list[1].id == 0 && list[1].a == 0 && list[1].b == 1000 && list[1].has_b && !list[1].has_rf);
}

TEST(CatalogueLoad, DatumsAreNumberedByRow) {
    const auto list = loaded(ox::load_datums, ox::datum_columns,
                             {"DATUM_NAME=one",
                              "DATUM=two|SHIFT_X0=1|SHIFT_Y0=2|SHIFT_Z0=3|ROTAT_X0=4"
                              "|ROTAT_Y0=5|ROTAT_Z0=six|SCALE_F0=-7.5|ELLPS_ID=9"});
    EXPECT_EQ(list[1].id, 2u);
    EXPECT_EQ(list[1].towgs84(), (std::array<double, 7>{1, 2, 3, 4, 5, 0, -7.5}));
    EXPECT_EQ(ox::find_datum_by_params(list, 9, {1, 2, 3, 4, 5, 0, -7.5}), &list[1]);
    EXPECT_EQ(ox::find_datum_by_params(list, 9, {1, 2, 3, 4, 5, 0, -7.4}), nullptr);
    EXPECT_EQ(ox::find_datum_by_params(list, 8, {1, 2, 3, 4, 5, 0, -7.5}), nullptr);
    EXPECT_EQ(ox::find_datum_by_name(list, "ONE"), &list[0]);
    EXPECT_EQ(ox::find_datum_by_code(list, "two"), &list[1]);
    EXPECT_EQ(ox::find_datum_by_code(list, ""), nullptr);
    EXPECT_EQ(ox::find_by_id(list, 2), &list[1]);
}

TEST(CatalogueLoad, ProjectionSlots) {
    const auto list =
        projections({"PRJ_NAME=GK|PRJ_ALIAS=Gauss|PROJ=tmerc|SOUTH=1|UNITS=1|UNITS_V=m|ZONE=1|ZONE_V=31.9|"
                     "ZONE_N=31N|DATUM=S42"
                     "|LON_0=1|LON_0_MIN=-180|LON_0_MAX=180|K_0=1|K_0_V=0.9996|K=1|K_V=5",
                     "PROJ=lcc|SOUTH=no|UNITS=0|UNITS_V=m|ZONE=-1|ZONE_V=5|ZONE_N=5N|LAT_1=0|LAT_1_V=1|LAT_1_"
                     "MIN=1|LAT_TS=-1"
                     "|LAT_2=***",
                     "ZONE=1"});
    const auto& zonal = list[0];
    EXPECT_TRUE(zonal.id == 1 && zonal.name == "GK" && zonal.alias == "Gauss" && zonal.proj == "tmerc");
    EXPECT_TRUE(zonal.south.used && zonal.south.has_value && zonal.south.value && !zonal.south.needs_input);
    EXPECT_TRUE(zonal.units.used && !zonal.units.has_value && zonal.units.text == "m");
    EXPECT_TRUE(zonal.zone.used && !zonal.zone.has_value && zonal.zone.value == 31);
    EXPECT_TRUE(!zonal.zone_n.used && zonal.zone_n.has_value && zonal.zone_n.text == "31N");
    EXPECT_TRUE(!zonal.datum.used && zonal.datum.has_value && zonal.datum.text == "S42");
    EXPECT_TRUE(zonal.lon_0.needs_input && zonal.lon_0.has_min && zonal.lon_0.min == -180 &&
                zonal.lon_0.max == 180);
    EXPECT_TRUE(zonal.k_0.used && !zonal.k_0.needs_input && zonal.k_0.value == 0.9996 && !zonal.k_0.has_min);
    const auto& off = list[1];
    for (const auto* slot : {&off.lat_1, &off.lat_2, &off.lat_ts}) {
        EXPECT_TRUE(!slot->used && !slot->needs_input && !slot->has_value && !slot->has_min &&
                    slot->value == 0);
    }
    EXPECT_TRUE(!off.south.used && !off.units.used && off.units.text.empty());
    EXPECT_TRUE(!off.zone.used && off.zone.value == 0 && !off.zone_n.has_value && off.zone_n.text.empty());
    EXPECT_TRUE(list[2].zone.used && list[2].zone.value == 0);
}

TEST(CatalogueLoad, FailuresLeaveTheListEmpty) {
    const auto without_rf = std::to_array<std::string_view>({"ELLPS_ID", "ELLPS_NAME", "ELLPS", "A", "B"});
    for (const auto& [path, code] : {std::pair(std::string("/nowhere/pj_ellps.dbf"), 1),
                                     std::pair(table_of(without_rf, {"A=1"}), ox::bad_structure)}) {
        ox::Tox_pj_ellps_list list;
        list.resize(3);
        EXPECT_EQ(ox::load_ellps(path, list), code);
        EXPECT_TRUE(list.empty());
    }
    EXPECT_TRUE(ellipsoids({}).empty());
}

TEST(CatalogueFind, EllipsoidByAxes) {
    const auto list = ellipsoids({"ELLPS_ID=1|A=6378137|RF=298.257223563",
                                  "ELLPS_ID=2|A=6377563.396|B=6356256.909237", "ELLPS_ID=3|A=7|B=6|RF=3"});
    const auto found = [&](std::optional<double> a, std::optional<double> b, std::optional<double> rf) {
        const auto* ellps = ox::find_ellps_by_axes(list, a, b, rf);
        return ellps ? ellps->id : 0;
    };
    EXPECT_EQ(found({}, 6, 3), 0u);
    EXPECT_EQ(found(6378137, {}, {}), 0u);
    EXPECT_EQ(found(6378137, {}, 298.257223563), 1u);
    EXPECT_EQ(found(6378137, 6356752.314245179, {}), 1u);
    EXPECT_EQ(found(6378137, 6356752.32, {}), 0u);
    EXPECT_EQ(found(std::nextafter(6378137, 7e6), {}, 298.257223563), 0u);
    EXPECT_EQ(found(6377563.396, {}, 6377563.396 / (6377563.396 - 6356256.909237)), 2u);
    EXPECT_EQ(found(6377563.396, {}, 299.32), 0u);
    EXPECT_EQ(found(7, 5, 3), 3u);  // b differs, rf matches
    EXPECT_EQ(found(7, 5, {}), 0u);
    EXPECT_EQ(ox::find_ellps_by_code(list, ""), &list[0]);
}

using match_case = case_of<ox::proj4_traits, std::uint32_t>;  // expected: the record's id

TEST_CASES(CatalogueMatch, FindsTheFirst, match_case, {"OtherProjection", {.proj = "lcc"}, 0},
           {"South", {.proj = "TMERC", .south = true}, 1},
           {"CloseLatitude", {.proj = "tmerc", .lat_0 = 30.00009, .has_k_0 = true}, 2},
           {"FarLatitude", {.proj = "tmerc", .lat_0 = 30.0002, .has_k_0 = true}, 4},
           {"NothingAsked", {.proj = "tmerc"}, 3}, {"ScaleFactor", {.proj = "tmerc", .has_k_0 = true}, 4},
           {"TrueScaleHidesScaleFactor", {.proj = "tmerc", .has_lat_ts = true, .has_k_0 = true}, 3},
           {"BothParallels", {.proj = "tmerc", .has_lat_1 = true, .has_lat_2 = true}, 0}) {
    const auto list = projections({"PROJ=tmerc|SOUTH=1|K_0=1", "PROJ=tmerc|LAT_0=1|LAT_0_V=30|K_0=1",
                                   "PROJ=tmerc|LAT_TS=1|LAT_1=1", "PROJ=tmerc|K_0=1|LAT_2=1"});
    const auto* found = ox::match_proj4(list, c.given);
    EXPECT_EQ(found ? found->id : 0, c.expected);
}

TEST(CatalogueFind, ZonesAndGeographicEntries) {
    ox::Tox_pj_proj_list list;
    ox::add_geographic(list);
    EXPECT_TRUE(list[0].id == 1 && list[0].proj == "longlat" && list[1].id == 2 && list[1].proj == "latlong");
    auto &north = list.append(), &south = list.append();
    north.name = south.name = "UTM", north.proj = south.proj = "utm";
    north.zone.value = south.zone.value = 40;
    south.south.used = south.south.value = true;
    EXPECT_EQ(ox::find_proj_by_name_zone(list, "utm", 40), &north);
    EXPECT_EQ(ox::find_proj_by_name_zone(list, "utm", 41), nullptr);
    EXPECT_EQ(ox::find_proj_by_code_zone_south(list, "UTM", 40, true), &south);
    EXPECT_EQ(ox::find_proj_by_code_south(list, "utm", false), &north);
}

TEST(CataloguePath, StandsBesideTheExecutable) {
    const auto dir = [](const wchar_t* executable) {
        host_double::host().executable = executable;
        return ox::catalogue_dir();
    };
    EXPECT_EQ(dir(L"C:\\Programs\\Host\\host.exe"), "C:\\Programs\\Host\\");
    EXPECT_EQ(dir(L"/opt/\u0445\u043e\u0441\u0442/oxhost"),
              ox::wide_to_system(L"/opt/\u0445\u043e\u0441\u0442/"));
    const std::wstring deep = L"/" + std::wstring(2000, L'd') + L"/oxhost";
    EXPECT_EQ(dir(deep.c_str()).size(), 1024u);
    const std::string separator = dir(L"oxhost");
    EXPECT_TRUE(separator == "/" || separator == "\\");
    EXPECT_EQ(dir(L"C:oxhost"), "C:" + separator);
    dir(L"/opt/oxhost");
    EXPECT_EQ(ox::catalogue_path(ox::datums_table), "/opt/prj_def/pj_datum.dbf");
}

}  // namespace
