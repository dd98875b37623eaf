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

TEST_CASES(LossyNarrow, ReplacesWhatTheCodePageLacksAndGoesOn, lossy_case,
           {"CyrillicInWestern", 1252, "a?b", L"a\u0416b"},
           {"AstralInCyrillic", 1251, "\xC6?", L"\u0416\U0001F30D"},
           {"LastLetter", 866, "\x86?", L"\u0416\u00E9"},
           {"HeldBackLetter", 1258, "a\xEA?", L"a\u00EA\u0416"},
           {"LongText", 1251, std::string(999, '\xC6') + '?', std::wstring(999, L'\u0416') + L'\u4E00'},
           {"UnknownPage", 42, "", L"abc"}) {
    const auto& [name, page, narrow, wide] = c;
    EXPECT_EQ(to_narrow(wide.data(), wide.size(), page), narrow);
}

TEST_CASES(LossyWide, ReplacesWhatIsNoCharacterAndGoesOn, lossy_case,
           {"StrayByte", 65001,
            "a\x80"
            "b",
            L"a\xFFFD"
            L"b"},
           {"CutShort", 65001, "\xD0\x96\xF0\x9F", L"\u0416\xFFFD"},
           {"HighInAscii", 20127, "a\xC6", L"a\xFFFD"}, {"HeldBackLetter", 1255, "\xE0", L"\u05D0"},
           {"HeldBackBeforeDamage", 1255, "\xE0\xD9", L"\u05D0\xFFFD"},
           {"LongText", 866, std::string(1000, '\x86'), std::wstring(1000, L'\u0416')}) {
    const auto& [name, page, narrow, wide] = c;
    EXPECT_EQ(to_wide(narrow.data(), narrow.size(), page), wide);
}

struct locale_case {
    const char* name;
    const char* locale;
    std::string zhe;  ///< the Cyrillic letter in the locale's character set
};

TEST_CASES(SystemCodePage, IsTheLocalesAndNamesFiles, locale_case, {"C", "C", "\xD0\x96"},
           {"Utf8", "ru_RU.UTF-8", "\xD0\x96"}, {"Cp1251", "ru_RU.CP1251", "\xC6"}) {
    const process_locale locale(c.locale);
    if (locale.missing()) GTEST_SKIP() << "no locale " << c.locale;
    const std::string& zhe = c.zhe;
    EXPECT_EQ(to_narrow(L"\u0416", 1, 0), zhe);
    EXPECT_EQ(to_wide(zhe.data(), zhe.size(), 0), L"\u0416");

    const std::string folder = testing::TempDir() + "ox_" + c.name + "/";
    std::filesystem::create_directories(folder);
    const std::wstring path = std::wstring(folder.begin(), folder.end()) + L"\u0416";
    std::FILE* file = ox::platform::open_file(path.c_str(), "w");
    ASSERT_TRUE(file);
    std::fclose(file);
    EXPECT_TRUE(std::filesystem::exists(folder + zhe));
    std::filesystem::remove_all(folder);
}

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
