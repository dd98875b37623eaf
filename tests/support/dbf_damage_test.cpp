#include <array>
#include <bit>

#include "dbf_builder.h"
#include "recording_env.h"
#include "support/catalogue.h"
#include "support/dbf.h"
#include "testing/case_name.h"

namespace {

dbf_builder two_columns() {
    return dbf_builder().column("A", 'C', 4).column("B", 'B', 8).row({"1", "12345678"});
}

/// Touches everything that a table offers; the sanitizers watch.
void use_all(const std::string& path, bool read_only) {
    ox::Tox_dbf table;
    ASSERT_EQ(table.dbf_open(path, read_only), 0);
    for (const std::uint32_t record : {0u, 1u, 5u, 0x7FFFFFFFu, 0xFFFFFFFEu}) {
        table.go_record(record);
        for (std::uint32_t i = 0; i < table.field_count() + 2; ++i) {
            table.get_text(i), table.get_int(i), table.get_double(i), table.get_bool(i);
            if (record == 0) table.set_double(i, -1e300), table.set_from_text(i, "12");
        }
    }
    table.append_blank_records(1);
}

struct damage_case {
    const char* name;
    dbf_builder table;
    std::uint32_t columns;
    const char* text;  ///< of column A in record 0
    double number;     ///< of column B in record 0
};

const double stored = std::bit_cast<double>(std::to_array({'1', '2', '3', '4', '5', '6', '7', '8'}));

TEST_CASES(DbfDamage, ReadsWhatIsThere, damage_case, {"None", two_columns(), 2, "1   ", stored},
           {"NoColumns", dbf_builder().row({}), 0, "", 0},
           {"RecordLengthZero", two_columns().claim_record_length(0), 0, "", 0},
           {"RecordShorterThanColumns", two_columns().claim_record_length(8), 2, "1   ", 0},
           {"RecordLongerThanFile", two_columns().claim_record_length(65535), 2, "1   ", stored},
           {"ColumnLongerThanRecord", two_columns().widen(0, 255), 2, "", stored},
           {"ColumnBeyondRecord", two_columns().displace(1, 6), 2, "1   ", 0},
           {"DisplacementWraps", two_columns().displace(1, 0xFFFFFFFC), 2, "1   ", 0},
           {"HeaderLengthZero", two_columns().claim_header_length(0), 0, "", 0},
           {"HeaderBeyondFile", two_columns().claim_header_length(65535), 2, "", 0},
           {"FourBillionRecords", two_columns().claim_records(0xFFFFFFFF), 2, "1   ", stored},
           {"NoRecords", two_columns().claim_records(0), 2, "1   ", stored}) {
    const auto path = c.table.write();
    {
        ox::Tox_dbf table;
        ASSERT_EQ(table.dbf_open(path, true), 0);
        EXPECT_EQ(table.field_count(), c.columns);
        table.go_record(0);
        EXPECT_STREQ(table.get_text(0), c.text);
        EXPECT_EQ(table.get_double(1), c.number);
    }
    use_all(path, true);
    use_all(path, false);
}

TEST(DbfDamageSweep, EveryCutAndEveryWrongHeaderByteIsSurvived) {
    const auto sound = dbf_builder::with_columns(ox::projection_columns, 9).row({"a"}).row({"b"}).bytes();
    ox::Tox_pj_proj_list list;
    for (std::size_t size = 0; size < sound.size(); ++size) {
        const auto path = dbf_builder::write(std::string_view(sound).substr(0, size));
        const int code = ox::load_projections(path, list);
        const bool structure = size >= 54 * 32 + std::string_view("DATUM").size();  // the last name
        ASSERT_EQ(code, structure ? 0 : ox::bad_structure) << size << " bytes";
        if (size % 7 == 0) use_all(path, false);
    }
    EXPECT_EQ(list.size(), 2u);
    for (std::size_t at = 0; at < 32 * 3; ++at) {
        for (const char wrong : {'\0', '\x01', '\x7F', '\x80', '\xFF'}) {
            auto bytes = sound;
            bytes[at] = wrong;
            const auto path = dbf_builder::write(bytes);
            ox::load_projections(path, list);
            EXPECT_LE(list.size(), sound.size());
            use_all(path, false);
        }
    }
}

TEST(DbfDamageSweep, MissingRowsAreLeftOutAndReportedOnce) {
    recording_env reported;
    auto table = dbf_builder::with_columns(ox::ellps_columns, 5);
    for (int i = 0; i < 10; ++i) table.row({"7", "name"});
    ox::Tox_pj_ellps_list list;
    ASSERT_EQ(ox::load_ellps(table.claim_records(0xFFFFFFFF).write(), list), 0);
    EXPECT_EQ(list.size(), 10u);
    EXPECT_EQ(reported.errors,
              std::vector<std::string>{"Error reading file: \"" + testing::TempDir().substr(0, 1) + "\""});
}

TEST(DbfDamageSweep, AppendingToACutFileIsRefused) {
    recording_env reported;
    const auto path = two_columns().claim_records(1000).write();
    ox::Tox_dbf table;
    ASSERT_EQ(table.dbf_open(path, false), 0);
    EXPECT_FALSE(table.append_blank_records(1));
    EXPECT_EQ(reported.errors.size(), 1u);
    EXPECT_EQ(table.record_count(), 1000u);
}

}  // namespace
