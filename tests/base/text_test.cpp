#include "base/text.h"

#include <gtest/gtest.h>

#include "testing/case_name.h"

namespace {

struct text_case {
    const char* name;
    std::string utf8;
    std::wstring wide;
    bool damaged = false;  ///< does not come back
};

class HostTexts : public testing::TestWithParam<text_case> {};

TEST_P(HostTexts, CrossTheBorder) {
    const auto& given = GetParam();
    EXPECT_EQ(oxhost::to_wide(given.utf8), given.wide);
    if (!given.damaged) {
        EXPECT_EQ(oxhost::to_utf8(given.wide), given.utf8);
        EXPECT_EQ(oxhost::character_count(given.utf8), given.wide.size());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Utf8, HostTexts,
    testing::Values(text_case{"Empty", "", L""},
                    text_case{"EveryLength", "a\u0416\u20AC\U0001F30D", L"a\u0416\u20AC\U0001F30D"},
                    text_case{"Edges", "\x7F\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF",
                              L"\x7F\x80\u07FF\u0800\uFFFF\U00010000\U0010FFFF"},
                    text_case{"Overlong",
                              "\xC0\xAF"
                              "a",
                              L"\xFFFD\xFFFD"
                              L"a",
                              true},
                    text_case{"Surrogate", "\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD", true},
                    text_case{"TooHigh", "\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD", true},
                    text_case{"CutShort", "a\xF0\x9F\x8C", L"a\xFFFD", true},
                    text_case{"CutByALetter",
                              "\xE2\x82"
                              "a",
                              L"\xFFFD"
                              L"a",
                              true},
                    text_case{"StrayTail",
                              "\x80"
                              "a",
                              L"\xFFFD"
                              L"a",
                              true}),
    case_name);

TEST(HostTextsFromOutside, LoneSurrogatesAndNullAreHarmless) {
    EXPECT_EQ(oxhost::to_utf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\uFFFD");
    EXPECT_EQ(oxhost::to_utf8(static_cast<const wchar_t*>(nullptr)), "");
}

}  // namespace
