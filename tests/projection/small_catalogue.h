#pragma once
/// A catalogue of a few rows, and the dialogs' test fixture over it.

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "support/catalogue_columns.h"
#include "support/dbf.h"
#include "testing/host_double/host_double.h"
#include "testing/scratch_folder.h"

namespace ox {

namespace fs = std::filesystem;
using host_double::host;
/// Writes rows like "PRJ_NAME=GK|LON_0=1".
template <class Columns>
void write_table(const fs::path& path, const Columns& columns, const std::vector<std::string>& rows) {
    std::vector<Tox_dbf_field_def> fields;
    for (const auto& column : columns) fields.push_back({std::string(column), 'C', 40, 0});
    Tox_dbf table;
    ASSERT_EQ(table.dbf_create(path.string(), fields, static_cast<std::uint32_t>(rows.size())), 0);
    for (std::uint32_t i = 0; i < rows.size(); ++i) {
        table.go_record(i);
        std::istringstream cells(rows[i]);
        for (std::string column, text; std::getline(cells, column, '=') && std::getline(cells, text, '|');) {
            std::uint32_t index = 0;
            ASSERT_TRUE(table.find_field(column, index)) << column;
            table.set_text(index, text);
        }
    }
}

inline std::string zone(int number, double lon_0) {
    const std::string z = std::to_string(number);
    return "PRJ_NAME=GK|PROJ=tmerc|LON_0=1|LON_0_V=" + std::to_string(lon_0) +
           "|LAT_0=1|LAT_0_V=0|K_0=1|K_0_V=1|X_0=1|X_0_V=" + z +
           "500000|Y_0=1|Y_0_V=0|UNITS=1|UNITS_V=m|ZONE=1|ZONE_V=" + z + "|DATUM=Pulkovo";
}
inline std::string utm(int number, bool south, const std::string& name) {
    return "PRJ_NAME=" + name + "|PROJ=utm|ZONE=1|ZONE_V=" + std::to_string(number) + "|UNITS=1|UNITS_V=m" +
           (south ? "|SOUTH=1" : "");
}

/// A fresh host beside whose executable a catalogue may stand.
class Dialog : public testing::Test {
protected:
    void SetUp() override {
        host_double::reset();
        fs::create_directory(folder_ / "prj_def");
        host().executable = fs::path(folder_ / "host").wstring();
    }
    void TearDown() override { EXPECT_EQ(host().alive(), 0); }
    void write_catalogue() const {
        const fs::path tables = folder_ / "prj_def";
        write_table(tables / "pj_ellps.dbf", ellps_columns,
                    {"ELLPS_ID=1|ELLPS_NAME=WGS 84|ELLPS=WGS84|A=6378137|RF=298.257223563",
                     "ELLPS_ID=2|ELLPS_NAME=Krassovsky|ELLPS=krass|A=6378245|RF=298.3",
                     "ELLPS_ID=3|ELLPS_NAME=Own|A=6370000|B=6350000"});
        write_table(tables / "pj_datum.dbf", datum_columns,
                    {"DATUM_NAME=WGS84|DATUM=WGS84|ELLPS_ID=1",
                     "DATUM_NAME=Pulkovo|SHIFT_X0=24|SHIFT_Y0=-123|SHIFT_Z0=-94|ELLPS_ID=2"});
        write_table(tables / "pj_proj1.dbf", projection_columns,
                    {"PRJ_NAME=Transverse Mercator|PROJ=tmerc|LON_0=1|LAT_0=1|K_0=1|K_0_V=0.9996|X_0=1|Y_0=1"
                     "|UNITS=1|UNITS_V=m",
                     "PRJ_NAME=Lambert|PROJ=lcc|LON_0=1|LAT_0=1|LAT_1=1|LAT_1_MIN=-89|LAT_1_MAX=89|LAT_2=1"
                     "|X_0=1|Y_0=1|UNITS=1|UNITS_V=m"});
        write_table(tables / "pj_proj2.dbf", projection_columns,
                    {zone(7, 39), zone(8, 45), utm(40, false, "UTM North"), utm(40, true, "UTM South")});
    }

    scratch_folder folder_;
};

}  // namespace ox
