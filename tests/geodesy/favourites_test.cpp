#include "geodesy/favourites.h"

#include "base/files.h"
#include "texts.h"

namespace oxhost {
namespace {

class Favourites : public testing::Test {
protected:
    Favourites() { setenv("OXHOST_CONFIG", (folder_ / "new/config").c_str(), 1); }
    ~Favourites() override { unsetenv("OXHOST_CONFIG"); }

    static favourite_list loaded() {
        favourite_list list;
        list.load();
        return list;
    }

    scratch_folder folder_;
};

TEST_F(Favourites, AreKept) {
    favourite_list list = loaded();
    EXPECT_EQ(list.count(), 0);
    list.add({"Зона 7 \"GK\"", texts::zone7});
    list.add({"UTM", texts::utm37});
    list.add({"gone", ""});
    list.remove(2);
    list.rename(1, "UTM 37");
    for (const std::int32_t outside : {-1, 2, INT32_MIN, INT32_MAX}) {
        list.remove(outside);
        list.rename(outside, "other");
        EXPECT_EQ(list.at(outside), nullptr);
    }
    list.save();
    const favourite_list other = loaded();
    ASSERT_EQ(other.count(), 2);
    EXPECT_EQ(*other.at(0), (favourite{"Зона 7 \"GK\"", texts::zone7}));
    EXPECT_EQ(*other.at(1), (favourite{"UTM 37", texts::utm37}));
}

TEST_F(Favourites, UnchangedWritesNothing) {
    favourite_list list = loaded();
    list.save();
    EXPECT_FALSE(std::filesystem::exists(favourites_path()));
    list.add({"one", texts::utm37});
    list.save();
    const std::string same_file = folder_ / "same";  // a file that is written anew replaces it
    std::filesystem::create_hard_link(favourites_path(), same_file);
    list.save();
    favourite_list other = loaded();
    other.add({"two", ""});
    other.remove(1);
    other.save();
    EXPECT_TRUE(std::filesystem::equivalent(favourites_path(), same_file));
}

TEST_F(Favourites, DamagedFilesAreKeptAside) {
    std::filesystem::create_directories(folder_ / "new/config");
    int number = 0;
    for (const char* content : {"", "{\"favourites\": [", "[]", "{\"favourites\": [{\"caption\": 1}]}"}) {
        write_bytes(favourites_path(), content);
        favourite_list list;
        const std::string said = list.load().value_or("nothing");
        const std::string aside = favourites_path() + ".damaged-" + std::to_string(++number);
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 0) << said;
        EXPECT_NE(said.find(aside), std::string::npos) << said;
        EXPECT_EQ(bytes_of(aside), content);
        EXPECT_EQ(list.count(), 0);
        list.add({"new", texts::utm37});
        list.save();
        EXPECT_EQ(bytes_of(aside), content);
    }
}

TEST_F(Favourites, UnreadableFileIsNotReplaced) {
    std::filesystem::create_directories(favourites_path());  // a folder in its place: unreadable for root too
    favourite_list list;
    EXPECT_TRUE(list.load());
    list.add({"new", texts::utm37});
    EXPECT_THROW(list.save(), file_error);
}

}  // namespace
}  // namespace oxhost
