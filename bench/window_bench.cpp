// The window over 10,000 section lines of 200 vertices: how long until it is open, and what a frame costs.

#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QWheelEvent>
#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>

#include "desktop/window/main_window.h"
#include "testing/scratch_folder.h"

using namespace oxhost;
using namespace oxhost::desktop;

namespace {

constexpr int scenes = 10000, vertices = 200;

void make_project(const std::string& file) {
    std::vector<new_scene> added;
    for (int i = 0; i < scenes; ++i) {
        polyline line;
        const double x = 7400000 + (i % 100) * 6000.0, y = 6000000 + (i / 100) * 6000.0;
        for (int k = 0; k < vertices; ++k) line.push_back({x + k * 25.0, y + 2000 * std::sin(k * 0.05 + i)});
        added.push_back({"Line " + std::to_string(i), true,
                         "+proj=tmerc +lat_0=0 +lon_0=39 +k=1 +x_0=7500000 +y_0=0 +ellps=krass "
                         "+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +units=m +no_defs",
                         section_line(line)});
    }
    const auto made = project::create(file);
    made->append(added);
    made->close();
}

/// Milliseconds of each of many times: the median and the worst.
void report(const char* what, int times, const std::function<void(int)>& act) {
    std::vector<double> taken;
    QElapsedTimer since;
    for (int i = 0; i < times; ++i) {
        since.start();
        act(i);
        taken.push_back(static_cast<double>(since.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(taken);
    std::printf("%-28s median %7.1f ms   worst %7.1f ms\n", what, taken[taken.size() / 2], taken.back());
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const scratch_folder folder;
    make_project(folder / "many.gpkg");
    main_window window;
    window.resize(1500, 900);
    window.show();
    QApplication::processEvents();
    QElapsedTimer since;
    since.start();
    window.open(folder / "many.gpkg");
    window.grab();
    std::printf("table and first lines        %lld ms\n", static_cast<long long>(since.elapsed()));
    while (!window.map().complete()) QApplication::processEvents();
    std::printf("all lines on the map         %lld ms\n", static_cast<long long>(since.elapsed()));
    map_view& map = window.map();
    QImage frame(map.size(), QImage::Format_RGB32);
    const auto turn = [&](int angle) {
        const QPointF middle(map.width() / 2.0, map.height() / 2.0);
        QWheelEvent wheel(middle, middle, {}, {0, angle}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&map, &wheel);
        map.render(&frame);
    };
    report("pan, all lines shown", 40, [&](int i) {
        QKeyEvent key(QEvent::KeyPress, i % 2 ? Qt::Key_Left : Qt::Key_Right, Qt::NoModifier);
        QApplication::sendEvent(&map, &key);
        map.render(&frame);
    });
    report("zoom in and out", 60, [&](int i) { turn(i / 20 % 2 ? -120 : 120); });
    QTableView& table = window.scenes().table();
    report("sort 10,000 rows by caption", 6, [&](int i) {
        table.sortByColumn(scene_model::caption, i % 2 ? Qt::AscendingOrder : Qt::DescendingOrder);
    });
    report("select all", 6, [&](int i) { i % 2 ? table.clearSelection() : table.selectAll(); });
    rusage used{};
    getrusage(RUSAGE_SELF, &used);
    std::printf("peak memory                  %ld MB, the making of the project with it\n",
                used.ru_maxrss / 1024);
}
