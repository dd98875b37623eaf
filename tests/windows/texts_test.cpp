// String tables and raw texts, as the system keeps them.

#include <gtest/gtest.h>
#include <windows.h>

#include <cwchar>

#include "platform/platform.h"
#include "resources/text.h"

namespace {

using namespace ox::platform;

struct text_entry {
    std::uint32_t id;
    const wchar_t *russian, *english;
};
constexpr text_entry texts[] = {
#define OX_TEXT(symbol, id, russian, english) {id, L"" russian, L"" english},
#include "resources/texts.inc"
#undef OX_TEXT
};

void expect_stored_with_its_zero(std::uint32_t id, const std::wstring& text) {
    const wchar_t* stored = nullptr;
    const auto module = static_cast<HMODULE>(const_cast<void*>(own_module()));
    EXPECT_EQ(LoadStringW(module, id, reinterpret_cast<wchar_t*>(&stored), 0),
              static_cast<int>(text.size()) + 1)
        << id;
    const resource_text found = load_string(own_module(), id);
    EXPECT_EQ(found.c_str(), stored) << "copied without need: " << id;
    EXPECT_EQ(found.c_str(), text) << id;
}

TEST(OwnTexts, StandInTheStringTableInBothLanguages) {
    for (const auto& [id, russian, english] : texts) {
        expect_stored_with_its_zero(id, russian);
        expect_stored_with_its_zero(id + ox::text::english_offset, english);
    }
    EXPECT_FALSE(load_string(own_module(), 9));
    EXPECT_FALSE(load_string(nullptr, 10));
}

/// As the host's modules do: the neighbours follow each other without a zero between.
TEST(BasicTexts, AreEndedWhereTheTableDoesNot) {
    const std::pair<std::uint32_t, const wchar_t*> cases[] = {
        {99, L"Да"}, {100, L"Нет"}, {101, L"Применить"}, {50101, L"Apply"}, {50099, L"Yes"}};
    for (const auto& [id, text] : cases)
        EXPECT_EQ(std::wstring(load_string(basic_module(), id).c_str()), text) << id;
    EXPECT_FALSE(load_string(basic_module(), 98));
}

TEST(RawTexts, AreBytes) {
    EXPECT_EQ(load_raw_text(basic_module(), 301), "\xD0\xF3\xF1\xF1");
    EXPECT_EQ(load_raw_text(basic_module(), 50301), "English");
    EXPECT_EQ(load_raw_text(basic_module(), 303), std::nullopt);
    EXPECT_EQ(load_raw_text(own_module(), 301), std::nullopt);
    EXPECT_EQ(load_raw_text(nullptr, 301), std::nullopt);
}

}  // namespace
