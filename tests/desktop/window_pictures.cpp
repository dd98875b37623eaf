// The window and the utility's dialog over a project, as pictures: window_pictures PROJECT.gpkg FOLDER

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <deque>

#include "desktop/text.h"
#include "desktop/window/language_choice.h"
#include "desktop/window/look.h"
#include "desktop/window/main_window.h"
#include "run/plug_in_texts.h"
#include "testing/scratch_folder.h"

using namespace oxhost::desktop;
namespace plug_in = oxhost::run::plug_in_text;

namespace {

constexpr int pause = 300;  // ms; a window has drawn itself

QString ending_of(oxhost::language spoken, look_kind look) {
    return (spoken == oxhost::language::russian ? ".ru" : ".en") +
           QString(look == look_kind::dark ? ".dark.png" : ".png");
}

void press(QWidget* top, std::string_view caption) {
    for (auto* each : top->findChildren<QPushButton*>())
        if (each->isVisible() && each->text().remove('&') == to_qt(caption)) return each->click();
    std::fprintf(stderr, "no button %.*s\n", static_cast<int>(caption.size()), caption.data());
}

/// The steps wait for each other: each opens or closes the window that the next one is in.
class visitor {
public:
    explicit visitor(std::deque<std::function<void(QWidget*)>> steps) : steps_(std::move(steps)) { wait(); }

private:
    /// Anew each time: a step may wait in the window that the next one is for.
    void wait() {
        QTimer::singleShot(pause, &alive_, [this] { next(); });
    }
    void next() {
        if (!steps_.empty()) wait();
        QWidget* top = QApplication::activeModalWidget();
        for (QWidget* each : QApplication::topLevelWidgets())
            if (qobject_cast<QProgressDialog*>(each)) return;  // at work, if too shortly to be shown
        if (!top || steps_.empty()) return;
        const auto step = steps_.front();
        steps_.pop_front();
        step(top);
    }
    std::deque<std::function<void(QWidget*)>> steps_;
    QObject alive_;
};

void draw(const std::string& project, const QString& folder, oxhost::language spoken, look_kind look) {
    const QString ending = ending_of(spoken, look);
    switch_language(spoken);
    use_look(look);
    main_window window;
    window.resize(1280, 760);
    window.show();
    window.open(project);
    while (!window.map().complete()) QTest::qWait(20);
    window.shown().select({10});
    QTest::qWait(pause);
    window.grab().save(folder + "/window" + ending);
    const auto picture = [&](const char* name) {
        return [=](QWidget* top) { top->grab().save(folder + '/' + name + ending); };
    };
    const auto close = [](QWidget* top) { top->close(); };
    const scratch_folder target;
    write_bytes(target / "target.pj4", "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs");
    const visitor goes(
        {[](QWidget* top) { press(top, plug_in::load()); },
         [&](QWidget* top) {
             auto* name = top->findChild<QLineEdit*>("fileNameEdit");
             name->setText(QString::fromStdString(target / "target.pj4"));
             QTest::keyClick(name, Qt::Key_Return);
         },
         [](QWidget* top) { top->findChild<QAction*>("oxk_scn2d_prf_reproj_select_tool")->trigger(); },
         picture("dialog"), [](QWidget* top) { press(top, oxhost::words("Просмотр…", "Preview…")); },
         picture("preview"), close, close});
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
