#include "support/dbf.h"

#include <sstream>

#include "dbf_builder.h"
#include "recording_env.h"
#include "support/dbf_text.h"
#include "support/file.h"
#include "support/lng_tables.h"
#include "testing/case_name.h"

namespace {

std::string bytes_of(double value) { return {reinterpret_cast<const char*>(&value), sizeof value}; }
std::string bytes_of(std::int32_t value) { return {reinterpret_cast<const char*>(&value), sizeof value}; }

std::string contents(const std::string& path) {
    std::ostringstream out;
    out << std::ifstream(path, std::ios::binary).rdbuf();
    return out.str();
}

struct cell_case {
    const char* name;
    char type;
    std::uint8_t length;
    std::string bytes, text;
    int as_int;
    double as_double;
    bool as_bool;
};

TEST_CASES(DbfCell, ReadsAsEveryType, cell_case,
           {"TextKeepsBlanks", 'C', 10, "abc", "abc       ", 0, 0, false},
           {"BoolWord", 'C', 4, " Y ", " Y  ", 0, 0, true}, {"NoBoolWord", 'C', 3, "yes", "yes", 0, 0, false},
           {"IntStopsAtPoint", 'N', 6, "  12.7", "  12.7", 12, 12.7, false},
           {"Asterisks", 'N', 3, "***", "***", 0, 0, false},
           {"TextStopsAtNul", 'C', 4, {'1', '\0', '2', '3'}, "1", 1, 1, true},
           {"BinaryDouble", 'B', 8, bytes_of(-2.75), "-2.75", -2, -2.75, true},
           {"BinaryDoubleTooLargeForInt", 'B', 8, bytes_of(1e300), "1e+300", INT32_MIN, 1e300, true},
           {"BinaryInt", 'I', 4, bytes_of(70000), "70000", 70000, 70000, true},
           {"NarrowBinaryInt", 'I', 2, bytes_of(513), "513", 513, 513, true}) {
    ox::Tox_dbf table;
    const auto path =
        dbf_builder().column("PAD", 'C', 3).column("X", c.type, c.length).row({"", c.bytes}).write();
    ASSERT_EQ(table.dbf_open(path, true), 0);
    std::uint32_t x = 0;
    ASSERT_TRUE(table.find_field(" x ", x));
    table.go_record(0);
    EXPECT_EQ(table.get_text(x), c.text);
    EXPECT_EQ(table.get_int(x), c.as_int);
    EXPECT_EQ(table.get_double(x), c.as_double);
    EXPECT_EQ(table.get_bool(x), c.as_bool);
}

TEST(Dbf, RunningDisplacementsAreFilledInAndStoredOnesKept) {
    ox::Tox_dbf table;
    auto damaged = dbf_builder().column("A", 'C', 2).column("B", 'C', 3).column("C", 'C', 1);
    damaged.row({"aa", "bbb", "c"});
    damaged.displace(0, 0).displace(1, 2).displace(2, 0).without_descriptor_end();
    ASSERT_EQ(table.dbf_open(damaged.write(), true), 0);
    ASSERT_EQ(table.field_count(), 3u);
    for (const std::uint32_t i : {0u, 1u, 2u})
        EXPECT_EQ(table.field(i).displacement(), (std::array{1u, 2u, 5u}[i]));
    table.go_record(0);
    EXPECT_STREQ(table.get_text(1), "abb");
}

TEST(Dbf, CreatedTableIsWrittenByteForByteAndReadsBack) {
    const auto path = dbf_builder::write("");
    const ox::Tox_dbf_field_def columns[] = {
        {"NAME_CUT_TO_TEN", 'C', 6}, {"NUM", 'N', 7, 2}, {"WHOLE", 'N', 4}, {"BIN", 'B', 8}, {"INT", 'I', 4}};
    {
        ox::Tox_dbf table;
        ASSERT_EQ(table.dbf_create(path, columns, 1), 0);
        ASSERT_TRUE(table.append_blank_records(2));
        table.go_record(2);
        table.set_text(0, "much too long");
        table.set_double(1, 3.14159);
        table.set_int(2, -12345);
        table.set_from_text(3, " 0.5x");
        table.set_from_text(4, "77");
        table.go_record(0);  // writes record 2 back
        table.set_int(1, 5);
        table.set_double(4, 6.9);
        table.rename_field(1, "RENAMED_COLUMN");
        table.set_language_driver(0xC9);
    }
    const auto file = contents(path);
    ASSERT_EQ(file.size(), 32u * 6 + 1 + 3 * 30 + 1);
    EXPECT_EQ(file.substr(0, 12), std::string("\x03\x01\x01\x01\x03\0\0\0\xC1\0\x1E\0", 12));
    EXPECT_EQ(file.substr(32, 18), std::string("NAME_CUT_T\0C\x01\0\0\0\x06\0", 18));
    EXPECT_EQ(file.substr(64, 18), std::string("RENAMED_CO\0N\x07\0\0\0\x07\x02", 18));
    EXPECT_EQ(file[192], '\x0D');
    EXPECT_EQ(file.substr(193, 18), "          5.00    ");
    EXPECT_EQ(file.substr(193 + 30, 30), std::string(30, ' '));
    EXPECT_EQ(file.substr(193 + 60, 18), " much t   3.14-123");
    EXPECT_EQ(file.back(), '\x1A');

    ox::Tox_dbf table;
    ASSERT_EQ(table.dbf_open(path, true), 0);
    EXPECT_EQ(table.language_driver(), 0xC9);
    table.go_record(2);
    EXPECT_EQ(table.get_double(3), 0.5);
    EXPECT_EQ(table.get_int(4), 77);
    table.go_record(0);
    EXPECT_EQ(table.get_int(4), 6);
}

TEST(Dbf, FailuresAreReportedInTheUsersLanguageWithTheFirstLetterOfThePath) {
    recording_env reported;
    ox::Tox_dbf table;
    EXPECT_EQ(table.dbf_open("/nowhere/x.dbf", true), 1);
    EXPECT_EQ(reported.errors, std::vector<std::string>{"Can't open file: \"/\""});
    ox::lng_set(1);
    const auto path = dbf_builder().column("A", 'C', 2).row({"1"}).write();
    const std::string first_letter = "\"" + path.substr(0, 1) + "\"";
    ASSERT_EQ(table.dbf_open(path, true), 0);
    table.go_record(0);
    table.set_text(1, "x");  // there is no such column
    table.set_raw_double(7, 1);
    table.go_record(1);
    ASSERT_EQ(reported.errors.size(), 2u);
    ox::lng_set(0);
    table.go_record(0);
    table.set_text(0, "x");
    table.dbf_close();
    // The Russian reading message speaks of writing ("Ошибка записи в файл").
    EXPECT_EQ(reported.errors[1],
              "\xCE\xF8\xE8\xE1\xEA\xE0 \xE7\xE0\xEF\xE8\xF1\xE8 \xE2 \xF4\xE0\xE9\xEB: " + first_letter);
    EXPECT_EQ(reported.errors[2], "Error writing file: " + first_letter);
    const std::vector<ox::Tox_dbf_field_def> too_many(3000);
    EXPECT_EQ(table.dbf_create(dbf_builder::write(""), too_many, 0), 1);
}

TEST(Dbf, ARawReadKeepsChangedRecordsApart) {
    const auto path = dbf_builder::write("");
    const ox::Tox_dbf_field_def columns[] = {{"A", 'C', 4}};
    ox::Tox_dbf table;
    ASSERT_EQ(table.dbf_create(path, columns, 4), 0);
    table.go_record(0);
    table.set_text(0, "zero");
    table.read_record(1);
    EXPECT_EQ(table.current_record(), 0u);
    EXPECT_STREQ(table.get_text(0), "    ");
    table.set_text(0, "one");
    table.go_record(0);
    EXPECT_STREQ(table.get_text(0), "zero");
    table.set_text(0, "null");
    table.write_record(3);  // a copy; record 0 is still to be written
    table.dbf_close();
    EXPECT_EQ(contents(path).substr(65), " null one       null\x1A");
}

#ifdef __linux__
TEST(Dbf, AFullDiskIsReportedAtTheLatestWhenTheFileCloses) {
    recording_env reported;
    ox::Tox_file file;
    ASSERT_EQ(file.create("/dev/full"), ox::Tox_file::success);
    EXPECT_TRUE(file.write(0, "buffered", 8));
    EXPECT_TRUE(reported.errors.empty());
    file.close();
    EXPECT_EQ(reported.errors, std::vector<std::string>{"Error writing file: \"/\""});
}
#endif

TEST(DbfText, Helpers) {
    EXPECT_STREQ(ox::trim_text(" \r\t\na b\n "), "a b");
    EXPECT_EQ(ox::compare_trimmed(" ABC", "abc\n"), 0);
    EXPECT_LT(ox::compare_trimmed("ab", "abc"), 0);
    EXPECT_GT(ox::compare_trimmed("b", "ABC"), 0);
    EXPECT_LT(ox::compare_trimmed(nullptr, ""), 0);
    EXPECT_EQ(ox::compare_trimmed(nullptr, nullptr), 0);
    bool value = false;
    EXPECT_TRUE(ox::parse_bool_text(" TRUE ", value) && value);
    EXPECT_TRUE(ox::parse_bool_text("n", value) && !value);
    EXPECT_STREQ(ox::format_int(42, "no. %05d!"), "no. 00042!");
    const std::vector<std::string> list{"one", "Two"};
    EXPECT_EQ(ox::find_text(list, "TWO"), 1u);
}

}  // namespace
