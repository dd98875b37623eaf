#include <clocale>
#include <cstdio>

#include "platform/platform.h"
#include "testing/case_name.h"
#include "testing/scratch_folder.h"

namespace {

using ox::platform::to_narrow;
using ox::platform::to_wide;

/// One locale of the process, and an empty folder, for the length of a test.
struct process_locale {
    explicit process_locale(const char* name) : missing(!std::setlocale(LC_ALL, name)) {}
    ~process_locale() { std::setlocale(LC_ALL, "C"); }
    std::FILE* open(wchar_t name) const {
        const std::string path = folder / "";
        return ox::platform::open_file((std::wstring(path.begin(), path.end()) + name).c_str(), "w");
    }
    bool missing;
    scratch_folder folder;
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
           {"StrayByte", 65001, "a\x80!", L"a\xFFFD!"},
           {"CutShort", 65001, "\xD0\x96\xF0\x9F", L"\u0416\xFFFD"},
           {"HighInAscii", 20127, "a\xC6", L"a\xFFFD"}, {"HeldBackLetter", 1255, "\xE0", L"\u05D0"},
           {"HeldBackBeforeDamage", 1255, "\xE0\xD9", L"\u05D0\xFFFD"},
           {"LongText", 866, std::string(1000, '\x86'), std::wstring(1000, L'\u0416')}) {
    const auto& [name, page, narrow, wide] = c;
    EXPECT_EQ(to_wide(narrow.data(), narrow.size(), page), wide);
}

using locale_case = case_of<const char*, std::string>;  // expected: a Cyrillic letter in its character set

TEST_CASES(SystemCodePage, IsTheLocalesAndNamesFiles, locale_case, {"C", "C", "\xD0\x96"},
           {"Utf8", "ru_RU.UTF-8", "\xD0\x96"}, {"Cp1251", "ru_RU.CP1251", "\xC6"}) {
    const process_locale locale(c.given);
    if (locale.missing) GTEST_SKIP() << "no locale " << c.given;
    EXPECT_EQ(to_narrow(L"\u0416", 1, 0), c.expected);
    EXPECT_EQ(to_wide(c.expected.data(), c.expected.size(), 0), L"\u0416");
    std::FILE* file = locale.open(L'\u0416');
    ASSERT_TRUE(file);
    std::fclose(file);
    EXPECT_TRUE(std::filesystem::exists(locale.folder / c.expected));
}

TEST(SystemCodePage, APathThatItCannotSpellOpensNoOtherFile) {
    const process_locale locale("ru_RU.CP1251");
    if (locale.missing) GTEST_SKIP() << "no locale ru_RU.CP1251";
    EXPECT_EQ(locale.open(L'\u4E00'), nullptr);
    EXPECT_EQ(locale.folder.files(), 0);
}

}  // namespace
