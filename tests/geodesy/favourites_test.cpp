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

/// Each of two writers loaded the same list; neither loses what the other did, and a linked file stays one.
TEST_F(Favourites, OfSeveralWritersMerge) {
    std::filesystem::create_directories(folder_ / "new/config");
    std::filesystem::create_directories(folder_ / "common");
    std::filesystem::create_symlink("../../common/list.json", favourites_path());
    favourite_list first = loaded();
    for (const char* caption : {"kept", "renamed", "removed", "removed by both"})
        first.add({caption, caption});
    first.save();
    favourite_list second = loaded();
    first.rename(1, "new name");
    first.remove(3);
    first.add({"of the first", ""});
    first.save();
    second.remove(2);
    second.remove(2);
    second.add({"of the second", ""});
    second.save();
    const std::vector<std::string> expected{"kept", "new name", "of the first", "of the second"};
    std::vector<std::string> captions;
    for (std::int32_t i = 0; i < second.count(); ++i) captions.push_back(second.at(i)->caption);
    EXPECT_EQ(captions, expected);
    EXPECT_EQ(loaded().count(), 4);
    EXPECT_TRUE(std::filesystem::is_symlink(favourites_path()));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder_ / "common/list.json"));
}

}  // namespace
}  // namespace oxhost
