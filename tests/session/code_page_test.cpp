#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <filesystem>

#include "platform/platform.h"
#include "testing/case_name.h"

namespace {

using ox::platform::to_narrow;
using ox::platform::to_wide;

/// One locale of the process for the length of a test.
class process_locale {
public:
    explicit process_locale(const char* name) : set_(std::setlocale(LC_ALL, name)) {}
    ~process_locale() { std::setlocale(LC_ALL, "C"); }
    process_locale(const process_locale&) = delete;
    process_locale& operator=(const process_locale&) = delete;
    bool missing() const { return !set_; }

private:
    const char* set_;
};

struct lossy_case {
    const char* name;
    unsigned code_page;
    std::string narrow;
    std::wstring wide;
};

class LossyNarrow : public testing::TestWithParam<lossy_case> {};
class LossyWide : public testing::TestWithParam<lossy_case> {};

TEST_P(LossyNarrow, ReplacesWhatTheCodePageLacksAndGoesOn) {
    const auto& [name, page, narrow, wide] = GetParam();
    EXPECT_EQ(to_narrow(wide.data(), wide.size(), page), narrow);
}

INSTANTIATE_TEST_SUITE_P(CodePages, LossyNarrow,
                         testing::Values(lossy_case{"CyrillicInWestern", 1252, "a?b", L"a\u0416b"},
                                         lossy_case{"AstralInCyrillic", 1251, "\xC6?", L"\u0416\U0001F30D"},
                                         lossy_case{"LastLetter", 866, "\x86?", L"\u0416\u00E9"},
                                         lossy_case{"HeldBackLetter", 1258, "a\xEA?", L"a\u00EA\u0416"},
                                         lossy_case{"LongText", 1251, std::string(999, '\xC6') + '?',
                                                    std::wstring(999, L'\u0416') + L'\u4E00'},
                                         lossy_case{"UnknownPage", 42, "", L"abc"}),
                         case_name);

TEST_P(LossyWide, ReplacesWhatIsNoCharacterAndGoesOn) {
    const auto& [name, page, narrow, wide] = GetParam();
    EXPECT_EQ(to_wide(narrow.data(), narrow.size(), page), wide);
}

INSTANTIATE_TEST_SUITE_P(
    CodePages, LossyWide,
    testing::Values(lossy_case{"StrayByte", 65001,
                               "a\x80"
                               "b",
                               L"a\xFFFD"
                               L"b"},
                    lossy_case{"CutShort", 65001, "\xD0\x96\xF0\x9F", L"\u0416\xFFFD"},
                    lossy_case{"HighInAscii", 20127, "a\xC6", L"a\xFFFD"},
                    lossy_case{"HeldBackLetter", 1255, "\xE0", L"\u05D0"},
                    lossy_case{"HeldBackBeforeDamage", 1255, "\xE0\xD9", L"\u05D0\xFFFD"},
                    lossy_case{"LongText", 866, std::string(1000, '\x86'), std::wstring(1000, L'\u0416')}),
    case_name);

struct locale_case {
    const char* name;
    const char* locale;
    std::string zhe;  ///< the Cyrillic letter in the locale's character set
};

class SystemCodePage : public testing::TestWithParam<locale_case> {};

TEST_P(SystemCodePage, IsTheLocalesAndNamesFiles) {
    const process_locale locale(GetParam().locale);
    if (locale.missing()) GTEST_SKIP() << "no locale " << GetParam().locale;
    const std::string& zhe = GetParam().zhe;
    EXPECT_EQ(to_narrow(L"\u0416", 1, 0), zhe);
    EXPECT_EQ(to_wide(zhe.data(), zhe.size(), 0), L"\u0416");

    const std::string folder = testing::TempDir() + "ox_" + GetParam().name + "/";
    std::filesystem::create_directories(folder);
    const std::wstring path = std::wstring(folder.begin(), folder.end()) + L"\u0416";
    std::FILE* file = ox::platform::open_file(path.c_str(), "w");
    ASSERT_TRUE(file);
    std::fclose(file);
    EXPECT_TRUE(std::filesystem::exists(folder + zhe));
    std::filesystem::remove_all(folder);
}

INSTANTIATE_TEST_SUITE_P(Locales, SystemCodePage,
                         testing::Values(locale_case{"C", "C", "\xD0\x96"},
                                         locale_case{"Utf8", "ru_RU.UTF-8", "\xD0\x96"},
                                         locale_case{"Cp1251", "ru_RU.CP1251", "\xC6"}),
                         case_name);

TEST(SystemCodePage, APathThatItCannotSpellOpensNoOtherFile) {
    const process_locale locale("ru_RU.CP1251");
    if (locale.missing()) GTEST_SKIP() << "no locale ru_RU.CP1251";
    const std::string folder = testing::TempDir() + "ox_spelling/";
    std::filesystem::create_directories(folder);
    const std::wstring path = std::wstring(folder.begin(), folder.end()) + L"\u4E00";
    EXPECT_EQ(ox::platform::open_file(path.c_str(), "w"), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    std::filesystem::remove_all(folder);
}

}  // namespace
