#include "support/lng_tables.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/encodings.h"
#include "testing/host_double/host_double.h"

namespace {

std::wstring russian(std::uint32_t group, std::int32_t index) {
    const std::string text = ox::lng_text(group, index);
    return ox::to_wide(text.data(), text.size(), 8);
}

// The decision is made once per process, so each case runs in a fresh one.
[[noreturn]] void first_lookup(int language, const std::string& expected) {
    host_double::host().language = language;
    ox::lng_set(language == 0 ? 0 : 1);  // before the first look-up: overruled by it
    const bool asked = ox::lng_text(10, 2) == expected;
    host_double::host().language = language == 0 ? 50000 : 0;  // too late
    std::exit(asked && ox::lng_text(10, 2) == expected ? 0 : 1);
}

TEST(LngDeathTest, TheHostIsAskedOnceAtTheFirstLookup) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const std::wstring mistaken = L"Ошибка записи в файл: \"%s\"";
    EXPECT_EXIT(first_lookup(0, ox::to_narrow(mistaken.data(), mistaken.size(), 8)),
                testing::ExitedWithCode(0), "");
    EXPECT_EXIT(first_lookup(50000, "Error reading file: \"%s\""), testing::ExitedWithCode(0), "");
}

TEST(Lng, GroupsHaveTheirSizesInBothLanguages) {
    ox::lng_init();
    const int sizes[] = {5, 23, 12, 14, 4, 7, 36, 6, 6, 13, 4, 1, 0};
    for (const std::uint32_t flag : {0u, 1u}) {
        ox::lng_set(flag);
        for (std::uint32_t group = 0; group < std::size(sizes); ++group) {
            for (const int outside : {-1, sizes[group], INT32_MIN, INT32_MAX}) {
                EXPECT_STREQ(ox::lng_text(group, outside), "unknown str") << group << ", " << outside;
            }
            for (int i = 0; i < sizes[group]; ++i) {
                EXPECT_STRNE(ox::lng_text(group, i), "unknown str") << group << ", " << i;
            }
        }
    }
    EXPECT_EQ(russian(6, 8), L"Ось \u0425");
    EXPECT_EQ(russian(6, 22), L"1я стандартная параллель");
    EXPECT_EQ(russian(0, 1), L"прервано пользователем");
    EXPECT_EQ(russian(1, 0), L"Расчёт статистики");
    ox::lng_set(0);
    EXPECT_STREQ(ox::lng_text(6, 35),
                 "Projection parameters file *.pj4|*.pj4|ESRI projection  file *.prj|*.prj");
    EXPECT_STREQ(ox::lng_text(11, 0), "K means");
}

}  // namespace
