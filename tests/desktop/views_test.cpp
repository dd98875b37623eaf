// Table and map over one document: what is filtered, sorted, selected, and where things lie.

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QSplitter>
#include <QTest>
#include <cmath>

#include "desktop/map/map_view.h"
#include "desktop/scenes/scene_table.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

constexpr auto utm40 = "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs";

struct Views : testing::Test {
    Views() {
        shown.create(folder / "p.gpkg");
        shown.change([](project& opened) {
            const new_scene added[] = {
                {"Line 10", true, utm40, polyline{{500000, 6200000}, {560000, 6200000}}},
                {"Line 2", true, "+proj=longlat +datum=WGS84", polyline{{57, 57}, {57, 58}}},
                {"Line 1", true, "", polyline{{1, 2}, {3, 4}}}};
            opened.append(added);
        });
        window.resize(1400, 600);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        while (!map.complete()) QTest::qWait(5);
        QTest::qWait(20);
    }
    std::vector<std::string> captions() {
        std::vector<std::string> all;
        const QAbstractItemModel& rows = *table.table().model();
        for (int i = 0; i < rows.rowCount(); ++i)
            all.push_back(rows.index(i, scene_model::caption).data().toString().toStdString());
        return all;
    }
    /// On the map's widget, of a place in the map's system.
    QPoint pixel(point degrees) const { return map.scale().to_widget(degrees).toPoint(); }

    scratch_folder folder;
    document shown;
    QSplitter window;
    scene_table& table = *new scene_table(shown, &window);
    map_view& map = *new map_view(shown, &window);
};

TEST_F(Views, TableSortsNaturallyAndFiltersWhileOneTypes) {
    table.table().sortByColumn(scene_model::caption, Qt::AscendingOrder);
    EXPECT_EQ(captions(), (std::vector<std::string>{"Line 1", "Line 2", "Line 10"}));
    QTest::keyClicks(&table.filter(), "32640");
    EXPECT_EQ(captions(), std::vector<std::string>{"Line 10"}) << "by the code of its projection";
    QTest::keyClick(&table.filter(), Qt::Key_Escape);
    EXPECT_EQ(captions().size(), 3u);
    const QModelIndex length = table.table().model()->index(1, scene_model::length);
    const auto metres = [&] { return length.data(scene_model::sort_role).toDouble(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return metres() > 0; })) << "measured while nothing else is to be done";
    // geod +ellps=WGS84 -I: 1 degree of latitude from 57 to 58 north is 111368.786 m
    EXPECT_NEAR(metres(), 111368.786, 0.01);
}

TEST_F(Views, SelectTogether) {
    table.table().sortByColumn(scene_model::number, Qt::AscendingOrder);
    shown.select({1});
    ASSERT_EQ(table.table().selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table.table().selectionModel()->selectedRows().front().row(), 1);
    // cs2cs: the middle of Line 10 lies at 57.4803 E, 55.9444 N
    QTest::mouseClick(&map, Qt::LeftButton, {}, pixel({57.4803, 55.9444}));
    EXPECT_EQ(shown.selected(), std::vector<std::size_t>{0});
    QTest::mouseClick(&map, Qt::LeftButton, Qt::ControlModifier, pixel({57, 57.5}));
    EXPECT_EQ(shown.selected(), (std::vector<std::size_t>{0, 1}));
    QTableView& rows = table.table();
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {},
                      rows.visualRect(rows.model()->index(2, 1)).center());
    EXPECT_EQ(shown.selected(), std::vector<std::size_t>{2});
}

TEST_F(Views, MapZoomsAtThePointerAndChangesItsSystem) {
    const QPointF at(200, 150);
    const point under = map.scale().to_map(at);
    QWheelEvent wheel(at, map.mapToGlobal(at), {}, {0, 240}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&map, &wheel);
    EXPECT_NEAR(map.scale().to_map(at).x, under.x, 1e-9);
    EXPECT_NEAR(map.scale().to_map(at).y, under.y, 1e-9);
    map.set_system(utm40);
    while (!map.complete()) QTest::qWait(5);
    QTest::qWait(20);
    EXPECT_NEAR(map.scale().middle.x, 530000, 60000) << "fitted in metres";
    EXPECT_THROW(map.set_system("+proj=nowhere"), std::invalid_argument);
}

TEST_F(Views, MapThinsByLessThanAPixel) {
    shown.change([](project& opened) {
        polyline wave;
        for (int i = 0; i < 5000; ++i) wave.push_back({i * 0.001, 50 + std::sin(i * 0.01)});
        opened.append(std::vector{new_scene{"Wave", true, "+proj=longlat +datum=WGS84", wave}});
    });
    projected_lines lines(shown);
    while (!lines.complete()) QTest::qWait(5);
    const double pixel_size = 0.13;
    const auto& kept = lines.thinned(3, pixel_size);
    EXPECT_LT(kept.size(), 2500u);
    for (const point& each : lines.lines()[3].places)
        EXPECT_TRUE(std::ranges::any_of(kept, [&](const point& near) {
            return std::hypot(near.x - each.x, near.y - each.y) < pixel_size;
        }));
}

}  // namespace
}  // namespace oxhost::desktop
