// The plug-in as a DLL: loading, unloading, version.

#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "border/call.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/services.h"
#include "border/polymorphic.h"
#include "framework/value_visitors.h"
#include "platform/platform.h"
#include "testing/host_double/host_double.h"

namespace {

constexpr wchar_t module_file[] = L"oxk_scn2d_prf_reproj.dll";

DWORD open_handles() {
    DWORD count = 0;
    GetProcessHandleCount(GetCurrentProcess(), &count);
    return count;
}

/// The loaded plug-in.
class plug_in {
public:
    plug_in() : module_(LoadLibraryW(module_file)) {}
    ~plug_in() {
        EXPECT_TRUE(FreeLibrary(module_));
        EXPECT_EQ(GetModuleHandleW(module_file), nullptr);
    }
    plug_in(const plug_in&) = delete;
    plug_in& operator=(const plug_in&) = delete;

    ox::custom_pointer bundle() {
        const auto entry = ox::platform::host_function<ox::custom_pointer(void*)>(
            "oxk_scn2d_prf_reproj", "ox_bundle_interface_to_custom_pointer");
        return entry ? entry(this) : ox::custom_pointer{};
    }

private:
    HMODULE module_;
};

TEST(Module, LoadsAndUnloadsWithoutATrace) {
    const auto once = [] { EXPECT_TRUE(plug_in().bundle()) << GetLastError(); };
    once();  // the first time the system itself takes some
    const DWORD before = open_handles();
    for (int round = 0; round < 20; ++round) once();
    EXPECT_EQ(open_handles(), before);
}

/// Takes a utility service and notes its caption in both languages.
struct caption_reader final : ox::polymorphic<ox::service_registry_impl>,
                              ox::polymorphic<ox::utility_service_visitor_impl>,
                              ox::polymorphic<ox::utility_visitor_impl> {
    using service_registry_impl::visit;
    std::wstring russian, english;

    void visit(ox::custom_pointer service) override {
        ox::call<&ox::utility_service_impl::report>(service,
                                                    ox::make_pointer<ox::utility_visitor_impl>(*this));
    }
    void visit(const wchar_t* id, ox::custom_pointer utility) override {
        EXPECT_EQ(id, std::wstring(L"oxk_scn2d_prf_reproj"));
        for (const auto& [language, text] : {std::pair(0, &russian), std::pair(50000, &english)}) {
            host_double::host().language = language;
            ox::stdwstring_visitor sink(*text);
            ox::call<&ox::utility_impl::visit_caption>(utility,
                                                       ox::make_pointer<ox::string_visitor_impl>(sink));
        }
    }
};

struct factory_list final : ox::factory_visitor_impl {
    std::vector<std::pair<std::wstring, ox::custom_pointer>> factories;
    void visit(const wchar_t* key, ox::custom_pointer factory) override {
        factories.emplace_back(key, factory);
    }
};

TEST(Module, TellsItsCaptionFromItsOwnStringTable) {
    plug_in loaded;
    factory_list list;
    const ox::custom_pointer bundle = loaded.bundle();
    ASSERT_TRUE(bundle);
    ox::detail::function_at<void (*)(const void*, void*, const ox::custom_pointer&)>(bundle, 1)(
        bundle.table, bundle.object, ox::make_pointer<ox::factory_visitor_impl>(list));
    ASSERT_EQ(list.factories.size(), 6u);
    const auto& [key, utilities] = list.factories[1];
    EXPECT_TRUE(key.ends_with(L"/utility"));
    caption_reader reader;
    ox::call<&ox::service_factory_impl::create>(utilities, ox::custom_pointer{},
                                                ox::make_pointer<ox::service_registry_impl>(reader));
    EXPECT_EQ(reader.russian, L"Перепроецирование сцен разрезов");
    EXPECT_EQ(reader.english, L"Batch Project Sections");
}

TEST(Module, CarriesItsVersion) {
    DWORD unused = 0;
    std::vector<char> info(GetFileVersionInfoSizeW(module_file, &unused));
    ASSERT_FALSE(info.empty());
    ASSERT_TRUE(GetFileVersionInfoW(module_file, 0, static_cast<DWORD>(info.size()), info.data()));
    void* text = nullptr;
    UINT length = 0;
    ASSERT_TRUE(VerQueryValueW(info.data(), L"\\StringFileInfo\\040904B0\\FileVersion", &text, &length));
    EXPECT_EQ(std::wstring(static_cast<const wchar_t*>(text)), OX_TEST_VERSION);
}

TEST(HostFunctions, AreFoundByModuleAndName) {
    EXPECT_TRUE(ox::platform::find_host_function("oxk_basic", "ox_res_get_lng"));
    EXPECT_FALSE(ox::platform::find_host_function("oxk_basic", "ox_scn_begin_update"));
    EXPECT_FALSE(ox::platform::find_host_function("oxk_nowhere", "ox_res_get_lng"));
}

}  // namespace
