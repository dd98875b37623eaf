// Files with Cyrillic names.

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/platform.h"
#include "support/encodings.h"
#include "support/file.h"

namespace {

const std::wstring folder = L"Каталог проекций " + std::to_wstring(GetCurrentProcessId());

class CyrillicPath : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr)) << GetLastError(); }
    void TearDown() override {
        DeleteFileW(path.c_str());
        EXPECT_TRUE(RemoveDirectoryW(folder.c_str())) << "something else was created";
    }
    const std::wstring path = folder + L"\\Эллипсоиды.dbf";
};

TEST_F(CyrillicPath, OpensWhateverTheCodePage) {
    EXPECT_EQ(ox::platform::open_file(path.c_str(), "rb"), nullptr);
    EXPECT_EQ(ox::platform::open_file(nullptr, "rb"), nullptr);
    std::FILE* file = ox::platform::open_file(path.c_str(), "wb+");
    ASSERT_TRUE(file);
    EXPECT_EQ(std::fputs("a\nb", file), 0);
    std::fclose(file);
    WIN32_FILE_ATTRIBUTE_DATA found{};
    ASSERT_TRUE(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found));
    EXPECT_EQ(found.nFileSizeLow, 3u);
}

TEST_F(CyrillicPath, OpensByItsNarrowNameWhereTheCodePageHasOne) {
    const bool spelled = GetACP() == 1251;
    ox::Tox_file file;
    EXPECT_EQ(file.create(ox::wide_to_system(path)) == ox::Tox_file::success, spelled);
    if (!spelled) return;
    EXPECT_TRUE(file.write(0, "abc", 3));
    file.close();
    EXPECT_NE(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
    char last = 0;
    EXPECT_EQ(file.open(ox::wide_to_system(path), true), ox::Tox_file::success);
    EXPECT_EQ(file.read(2, &last, 1), 1u);
    EXPECT_EQ(last, 'c');
}

}  // namespace
