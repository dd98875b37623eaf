#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace oxhost;

TEST(Numbers, ComeBackFromTheirTexts) {
    for (const double number : {0.1, -79.8, 1e7, 123456789012345.0, 1e-7, 5e-324, 1.7976931348623157e308,
                                1e15, 1.0 / 3, 6378137.0}) {
        for (const double either : {number, -number}) {
            const std::string text = number_text(either);
            EXPECT_EQ(parse_number(text), either) << text;
        }
    }
    EXPECT_EQ(number_text(-0.0), "0");
    EXPECT_EQ(number_text(10500000), "10500000") << "no exponent: a \"+\" would begin a new key";
}

TEST(Numbers, AreWholeTexts) {
    for (const char* text : {"", "+", "1,5", "1 ", " 1", "1e", "++1", "inf", "nan", "1e999", "0x10"})
        EXPECT_EQ(parse_number(text), std::nullopt) << text;
    for (const char* text : {"", "1.0", "+1", "1 ", "99999999999999999999"})
        EXPECT_EQ(parse_whole_number(text), std::nullopt) << text;
    EXPECT_EQ(parse_number("+1.5"), 1.5);
    EXPECT_EQ(parse_whole_number("-17"), -17);
}

}  // namespace
