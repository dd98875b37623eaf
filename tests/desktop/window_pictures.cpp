// The window and the utility's dialog over a project, as pictures: window_pictures PROJECT.gpkg FOLDER

#include <QApplication>
#include <QMenuBar>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <clocale>
#include <cstdio>

#include "desktop/window/language_choice.h"
#include "desktop/window/look.h"
#include "desktop/window/main_window.h"
#include "testing/scratch_folder.h"

using namespace oxhost::desktop;

namespace {

void draw(const std::string& project, const QString& folder, oxhost::language spoken, look_kind look) {
    const QString ending = (spoken == oxhost::language::russian ? ".ru" : ".en") +
                           QString(look == look_kind::dark ? ".dark.png" : ".png");
    switch_language(spoken);
    use_look(look);
    main_window window;
    window.resize(1280, 760);
    window.show();
    window.open(project);
    while (!window.map().complete()) QTest::qWait(20);
    window.shown().select({10});
    QTest::qWait(200);
    window.grab().save(folder + "/window" + ending);
    QTimer::singleShot(500, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->grab().save(folder + "/dialog" + ending);
        dialog->close();
    });
    window.menuBar()->actions()[2]->menu()->actions().front()->trigger();  // the first utility
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return std::fputs("usage: window_pictures PROJECT.gpkg FOLDER\n", stderr), 64;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const scratch_folder settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QString::fromStdString(settings.path()));
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    for (const auto spoken : {oxhost::language::english, oxhost::language::russian})
        for (const auto look : {look_kind::light, look_kind::dark}) draw(argv[1], argv[2], spoken, look);
}
