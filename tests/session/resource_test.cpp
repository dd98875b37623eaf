#include <gtest/gtest.h>

#include <dlfcn.h>

#include <filesystem>
#include <fstream>

#include "platform/platform.h"
#include "testing/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace ox::platform;

std::wstring text_of(resource_module module, std::uint32_t id) {
    const resource_text found = load_string(module, id);
    return found ? found.c_str() : L"(none)";
}

TEST(OwnResources, ServeBothLanguagesAndOnePicture) {
    EXPECT_EQ(text_of(own_module(), 10), L"Перепроецирование сцен разрезов");
    EXPECT_EQ(text_of(own_module(), 50010), L"Batch Project Sections");
    for (const std::uint32_t id : {0u, 9u, 50000u, 99u, 49999u, 4294967295u})
        EXPECT_FALSE(load_string(own_module(), id));
    EXPECT_EQ(load_bitmap(own_module(), 66).width, 16);
    EXPECT_FALSE(load_bitmap(own_module(), 67).loaded);
    EXPECT_FALSE(load_masked_bitmap(own_module(), 66).loaded);
}

/// Copies the host's basic module, whose string table then ends with `lines`, and tells its name there.
std::string copy_basic_module(const scratch_folder& folder, const char* lines) {
    const fs::path original(OX_TEST_BASIC_MODULE);
    fs::copy(original, folder.path());
    fs::copy(original.parent_path() / "oxk_basic.res", folder / "oxk_basic.res");
    std::ofstream(folder / "oxk_basic.res/strings.txt", std::ios::app) << lines;
    return folder / original.filename().string();
}

TEST(BasicResources, StandBesideTheModuleThatServesTheBasicFunctions) {
    EXPECT_EQ(basic_module(), nullptr);
    EXPECT_FALSE(load_string(nullptr, 101));
    EXPECT_FALSE(load_bitmap(nullptr, 118).loaded);

    const scratch_folder folder;
    const std::string module = copy_basic_module(folder, "98\tneutral\n50098\t\n");
    ASSERT_TRUE(dlopen(module.c_str(), RTLD_NOW | RTLD_GLOBAL)) << dlerror();
    ASSERT_NE(basic_module(), nullptr);
    EXPECT_NE(find_host_function("oxk_basic", "ox_res_get_lng"), nullptr);
    EXPECT_EQ(find_host_function("oxk_entity", "ox_scn_begin_update"), nullptr);
    for (const std::uint32_t id : {99u, 100u, 101u, 102u, 103u, 6214u, 6215u, 6216u}) {
        EXPECT_NE(text_of(basic_module(), id), L"(none)") << id;
        EXPECT_NE(text_of(basic_module(), id), text_of(basic_module(), id + 50000)) << id;
    }
    EXPECT_EQ(text_of(basic_module(), 50101), L"Apply");
    EXPECT_EQ(text_of(basic_module(), 98), L"neutral");
    EXPECT_EQ(text_of(basic_module(), 50098), L"(none)");  // an empty text is none
    for (const std::uint32_t id : {71u, 72u, 118u, 119u, 120u})
        EXPECT_EQ(load_bitmap(basic_module(), id).size, 1024u) << id;
}

}  // namespace
