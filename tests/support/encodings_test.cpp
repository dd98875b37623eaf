#include "support/encodings.h"

#include "support/string_adapter.h"
#include "testing/case_name.h"
#include "testing/host_double/host_double.h"

namespace {

struct conversion {
    const char* name;
    std::size_t encoding;
    std::string narrow;
    std::wstring wide;
};

TEST_CASES(Encodings, ConvertBothWays, conversion, {"Utf8", 0, "\xD0\x96", L"\u0416"},
           {"Cp1251", 8, "\xC6", L"\u0416"}, {"Cp1252", 9, "\xC6", L"\u00C6"},
           {"Cp866", 16, "\x86", L"\u0416"}, {"Ascii", 17, "abc", L"abc"}, {"System", 18, "abc", L"abc"},
           {"NoPageOfItsOwn", 1, "abc", L"abc"}, {"Empty", 0, "", L""},
           {"InnerNul", 0, std::string("a\0b", 3), std::wstring(L"a\0b", 3)}) {
    const auto& [name, encoding, narrow, wide] = c;
    EXPECT_EQ(ox::to_wide(narrow.data(), narrow.size(), encoding), wide);
    EXPECT_EQ(ox::to_narrow(wide.data(), wide.size(), encoding), narrow);
}

TEST(EncodingsOutside, NullAndUnknownEncodingGiveEmptyTexts) {
    EXPECT_EQ(ox::to_wide(nullptr, 3, ox::encoding_utf8), L"");
    EXPECT_EQ(ox::to_narrow(nullptr, 3, ox::encoding_utf8), "");
    EXPECT_EQ(ox::to_wide("abc", 3, ox::text_encodings.size()), L"");
}

TEST(StringAdapter, EachDeliveryReplacesTheTarget) {
    host_double::reset();
    std::wstring target = L"before";
    {
        ox::Tox_std_wstring_adapter adapter(target);
        const auto& host = *static_cast<host_double::adapter*>(adapter.handle());
        EXPECT_EQ(target, L"before");
        const auto after = [&](auto deliver, auto* text) { return deliver(text, host.context), target; };
        EXPECT_EQ(after(host.wide, L"\u0416"), L"\u0416");
        EXPECT_EQ(after(host.narrow, "abc"), L"abc");
        EXPECT_EQ(after(host.narrow, static_cast<const char*>(nullptr)), L"");
        host.wide(L"again", host.context);
        EXPECT_EQ(after(host.wide, static_cast<const wchar_t*>(nullptr)), L"");
    }
    EXPECT_EQ(host_double::host().alive(), 0);
}

}  // namespace
