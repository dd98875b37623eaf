// The project that the window shows, while other programs work on the same file.

#include "desktop/document.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <cstdlib>

#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

struct Document : testing::Test {
    Document() {
        shown.create(folder / "p.gpkg");
        shown.change([](project& opened) {
            const new_scene added[] = {
                {"Line 1", true, "+proj=utm +zone=40 +datum=WGS84", polyline{{0, 0}, {1, 1}}},
                {"Line 2", true, "", polyline{{0, 0}, {1, 1}}}};
            opened.append(added);
        });
    }
    int command(const std::string& words) {
        return std::system((OXHOST_PROGRAM " " + words + " >/dev/null 2>&1").c_str());
    }
    scratch_folder folder;
    document shown;
};

TEST_F(Document, LetsOthersWorkAndNoticesThem) {
    QSignalSpy noticed(&shown, &document::changed_elsewhere);
    shown.select({1});
    ASSERT_EQ(command("reproject '" + shown.file().string() + "' --scene 'Line 2' --to EPSG:32641 --yes"), 0);
    ASSERT_TRUE(noticed.wait(5000));
    EXPECT_EQ(shown.opened()->at(1)->proj4, "") << "before it is read again";
    shown.reload();
    EXPECT_NE(shown.opened()->at(1)->proj4.find("zone=41"), std::string::npos);
    EXPECT_EQ(noticed.count(), 1);
}

TEST_F(Document, OwnChangesAreReadAtOnceAndNotTakenForOthers) {
    QSignalSpy noticed(&shown, &document::changed_elsewhere), reset(&shown, &document::reset);
    shown.change([](project& opened) { opened.set_proj4(*opened.at(1), "+proj=longlat"); });
    EXPECT_EQ(shown.opened()->at(1)->proj4, "+proj=longlat");
    EXPECT_EQ(reset.count(), 1);
    EXPECT_FALSE(noticed.wait(1000));
}

TEST_F(Document, StaysOpenWhenAChangeFails) {
    EXPECT_THROW(shown.change([](project&) { throw std::runtime_error("no"); }), std::runtime_error);
    const auto locked = project::open(shown.file(), open_mode::read_write);
    EXPECT_THROW(shown.change([](project&) {}), project_error);
    ASSERT_TRUE(shown.opened());
    EXPECT_EQ(shown.opened()->size(), 2u);
    EXPECT_THROW(shown.open("/nowhere/p.gpkg"), project_error);
    EXPECT_TRUE(shown.opened());
}

}  // namespace
}  // namespace oxhost::desktop
