// Code pages as the system converts them.

#include "support/encodings.h"

#include <windows.h>

#include <cstdlib>

#include "testing/case_name.h"

namespace {

TEST(SystemCodePage, IsTheOneThatTheTestWasStartedIn) {
    const char* page = std::getenv("OX_TEST_CODE_PAGE");
    ASSERT_EQ(GetACP(), page ? static_cast<unsigned>(std::atoi(page)) : 0);
    const bool cyrillic = GetACP() == 1251;
    EXPECT_EQ(ox::system_to_wide("\xC6"), cyrillic ? L"\u0416" : L"\u00C6");
    EXPECT_EQ(ox::wide_to_system(L"\u0416"), cyrillic ? "\xC6" : "?");
}

struct utf8_case {
    const char* name;
    std::string narrow;
    std::wstring wide;
    enum { both, to_narrow, to_wide } direction = both;
};

TEST_CASES(Utf8, MeetsUtf16, utf8_case, {"Cyrillic", "\xD0\x96", L"\x0416"},
           {"SurrogatePair", "a\xF0\x9F\x8C\x8D", L"a\xD83C\xDF0D"},
           {"LonelySurrogate", "a\xEF\xBF\xBD!", L"a\xD83C!", utf8_case::to_narrow},
           {"SurrogatesSwapped", "\xEF\xBF\xBD\xEF\xBF\xBD", L"\xDF0D\xD83C", utf8_case::to_narrow},
           {"StrayByte", "a\x80!", L"a\xFFFD!", utf8_case::to_wide},
           {"InnerZero", std::string("a\0!", 3), std::wstring(L"a\0!", 3)}) {
    EXPECT_TRUE(c.direction == utf8_case::to_wide || ox::wide_to_utf8(c.wide) == c.narrow);
    EXPECT_TRUE(c.direction == utf8_case::to_narrow || ox::utf8_to_wide(c.narrow) == c.wide);
}

TEST(Encodings, ASurrogatePairIsOneLetterThatACodePageLacks) {
    const std::wstring text = L"\xD83C\xDF0D!";
    const std::string narrow = ox::to_narrow(text.data(), text.size(), 8);
    EXPECT_EQ(narrow.back(), '!');
    EXPECT_EQ(narrow.find_first_not_of('?'), narrow.size() - 1);
}

}  // namespace
