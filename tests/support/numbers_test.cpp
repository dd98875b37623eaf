#include "support/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "numeric_locale.h"
#include "pieces.h"
#include "support/dbf_text.h"

namespace {

// The C library in its "C" locale is the yardstick.
TEST(Numbers, ScanLikeTheCLibrary) {
    for (const auto& text :
         pieces("39| \t\r\n\v\f7.5|+.5|5.|-.|.||   |1e3|1e|1e+|1e-7x|--5|+-5|-+5|- 5|abc|7,5|-0|12d5"
                "|0x1p4|0X1.8|0x|0xg|-0x10|0x.8|inf|-INFINITY|nan|1e999|-1e999|1e-999|0e999999"
                "|1e99999999999|4.9e-324|1e308|0x1p-2000|0x1p2000|0.1e-400|6378137.0"
                "|17976931348623157000000000000000000000000000000000000000000e400")) {
        double expected = 0;
        const bool converted = std::sscanf(text.c_str(), "%lg", &expected) == 1;
        const auto found = ox::scan_double(text);
        EXPECT_EQ(found.has_value(), converted) << '"' << text << '"';
        if (!found || !converted || (std::isnan(*found) && std::isnan(expected))) continue;
        EXPECT_EQ(*found, expected) << '"' << text << '"';
        EXPECT_EQ(std::signbit(*found), std::signbit(expected)) << '"' << text << '"';
    }
    for (const auto& text : pieces("7| \n-12.7|+3|--3|+-3|x||0x10|2147483647|-2147483648")) {
        int expected = 0;
        const bool converted = std::sscanf(text.c_str(), "%d", &expected) == 1;
        EXPECT_EQ(ox::scan_int(text).has_value(), converted) << '"' << text << '"';
        EXPECT_EQ(ox::scan_int(text).value_or(0), expected) << '"' << text << '"';
    }
    EXPECT_EQ(ox::scan_int("99999999999999999999999"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(ox::scan_int("-3000000000"), std::numeric_limits<std::int32_t>::min());
}

TEST(Numbers, PrintLikeTheCLibrary) {
    for (const auto& number :
         pieces("0|-0|39|0.1|1e-7|1e-5|0.0001|500000|123456|1234567|999999.5|1e6|-7500000|298.257223563"
                "|6378137.0000001|999999999999|1e12|123456789012345|1e300|4.9e-324|inf|-inf|2.5")) {
        const double value = std::strtod(number.c_str(), nullptr);
        for (const int precision : {6, 12}) {
            std::array<char, 64> expected;
            std::snprintf(expected.data(), expected.size(), "%.*g", precision, value);
            std::string text;
            ox::append_general(text, value, precision);
            EXPECT_EQ(text, expected.data());
        }
        std::array<char, 400> expected;
        std::snprintf(expected.data(), expected.size(), "%10.3f", value);
        EXPECT_EQ(ox::fixed_text(value, 10, 3), expected.data());
    }
}

TEST(Numbers, TruncateWithoutSurprises) {
    const auto smallest = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(ox::truncated(31.9), 31);
    EXPECT_EQ(ox::truncated(-31.9), -31);
    EXPECT_EQ(ox::truncated(-2147483648.5), smallest);
    for (const double value : {2147483648.0, -1e300, std::nan(""), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(ox::truncated(value), smallest) << value;
    }
}

TEST(Numbers, ACommaLocaleChangesNothing) {
    const numeric_locale comma;
    if (!comma.is_set()) GTEST_SKIP() << "no locale with a decimal comma on this machine";
    EXPECT_EQ(ox::scan_double("7.5"), 7.5);
    EXPECT_EQ(ox::scan_double("7,5"), 7.0);
    std::string text;
    ox::append_general(text, 0.1, 12);
    EXPECT_EQ(text, "0.1");
    EXPECT_EQ(ox::fixed_text(1234.5, 0, 2), "1234.50");
    EXPECT_STREQ(ox::format_double(2.5), "2.5");
    EXPECT_STREQ(ox::format_double(2.5, "<%08.2f, x>"), "<00002.50, x>");
}

}  // namespace
