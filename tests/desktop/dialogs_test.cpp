// The plug-in's dialogs as windows, worked by mouse and keyboard.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <fstream>

#include "desktop/dialogs/utilities.h"
#include "desktop/dialogs/window_messages.h"
#include "desktop/text.h"
#include "person.h"
#include "session/console_messages.h"
#include "session/interruption.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

constexpr auto utm40 = "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs";

struct Dialogs : testing::Test {
    Dialogs() {
        messages::instance().use(std::make_unique<window_messages>(shown, user));
        QObject::connect(&shown, &document::said, &over, [this](const note& told) { notes.push_back(told); });
        shown.create(folder / "p.gpkg");
        shown.change([](project& opened) {
            const new_scene added[] = {
                {"Line 1", true, "+proj=longlat +datum=WGS84 +no_defs", polyline{{57, 0}, {54, 0}}},
                {"Line 2", true, "", polyline{{0, 0}, {1, 1}}}};
            opened.append(added);
        });
    }
    ~Dialogs() override {
        messages::instance().use(std::make_unique<console_messages>(console::standard(), console_options{}));
        choose_language({});
    }
    void run() {
        human.begin();
        offered.run(0);
        EXPECT_TRUE(human.is_done());
    }
    void load(const char* proj4) {
        std::ofstream(folder / "target.pj4") << proj4;
        human.click("Load");
        human.in<QFileDialog>([&](QFileDialog& asked) {
            EXPECT_EQ(asked.nameFilters().size(), 2);
            auto* name = asked.findChild<QLineEdit*>("fileNameEdit");
            name->setText(name_of_file(folder / "target.pj4"));
            QTest::keyClick(name, Qt::Key_Return);
        });
    }
    void select_all() {
        human.in<QDialog>([](QDialog& window) {
            const auto* tool = window.findChild<QAction*>("oxk_scn2d_prf_reproj_select_tool");
            ASSERT_TRUE(tool);
            for (auto* each : window.findChildren<QToolButton*>())
                if (each->defaultAction() == tool) QTest::mouseClick(each, Qt::LeftButton);
        });
    }
    int told(const char* text) const {
        return static_cast<int>(std::ranges::count(notes, QString(text), &note::text));
    }

    scratch_folder folder;
    QWidget over;
    document shown;
    window_user user{&over};
    utilities offered{shown, user};
    person human;
    std::vector<note> notes;
};

/// The second scene has no projection, hence the question. The point is that of
/// `echo 0 54 | cs2cs EPSG:4326 EPSG:32640`, latitude first.
TEST_F(Dialogs, RunAUtilityFromTargetToMessage) {
    choose_language(language::english);
    ASSERT_EQ(offered.offered().size(), 1u);
    const QString caption = offered.offered().front().caption;
    human.in<QDialog>([&](QDialog& window) { EXPECT_EQ(window.windowTitle(), caption); });
    for (int presses = 0; presses < 2; ++presses) {
        human.click("Apply");
        human.in<QMessageBox>([](QMessageBox& said) {
            EXPECT_EQ(said.text(), "Incorrect reprojection settings");
            QTest::keyClick(&said, Qt::Key_Return);
        });
    }
    human.in<QDialog>([&](QDialog&) { EXPECT_THROW(offered.run(0), shell::bundle_error); });
    human.click("Load");
    human.key<QFileDialog>(Qt::Key_Escape);
    load(utm40);
    select_all();
    human.click("Apply");
    human.key<QMessageBox>(Qt::Key_Return);  // which is no
    human.in<QDialog>([&](QDialog&) { EXPECT_EQ(shown.opened()->at(1)->proj4, ""); });
    human.click("Apply");
    human.click<QMessageBox>("Yes");
    human.key<QMessageBox>(Qt::Key_Return);
    human.in<QDialog>([](QDialog& window) { window.close(); });  // as the frame's close box does
    run();

    EXPECT_NEAR(shown.opened()->read_line(*shown.opened()->at(0)).xy.at(1).x, 166021.44, 0.01);
    EXPECT_FALSE(shown.opened()->at(1)->proj4.empty());
    EXPECT_EQ(told("Incorrect reprojection settings"), 2);
    EXPECT_EQ(told("1 reprojected, 1 assigned"), 1) << notes.back().text.toStdString();
}

TEST_F(Dialogs, NestAndAreClosedOneByOne) {
    const auto last_title = std::make_shared<QString>();
    for (const auto& [chosen, button] :
         {std::pair(language::russian, "Проекция"), std::pair(language::english, "Projection")}) {
        human.click(QString::fromUtf8(button));
        human.in<QDialog>([&, last_title](QDialog& window) {
            EXPECT_NE(window.windowTitle(), offered.offered().front().caption);
            EXPECT_NE(window.windowTitle(), *last_title) << "it is in the language of now";
            EXPECT_EQ(window.parentWidget()->windowTitle(), offered.offered().front().caption);
            *last_title = window.windowTitle();
            window.resize(window.width(), 555);
        });
        human.click("EPSG");
        for (int depth = 0; depth < 3; ++depth) human.key<QDialog>(Qt::Key_Escape);
        choose_language(chosen);
        run();
    }
    human.click("Projection");
    human.in<QDialog>([](QDialog& window) { EXPECT_EQ(window.height(), 555); });
    human.key<QDialog>(Qt::Key_Escape);
    human.key<QDialog>(Qt::Key_Escape);
    run();
}

/// One failed scene names its vertex: the place in its own coordinates, beyond what the target can hold.
TEST_F(Dialogs, TellWhereALineFails) {
    choose_language(language::english);
    shown.change([](project& opened) {
        const new_scene added[] = {{"Far", true, utm40, polyline{{500000, 0}, {1e9, 1e9}}}};
        opened.append(added);
    });
    load("+proj=utm +zone=41 +datum=WGS84 +units=m +no_defs");
    select_all();
    human.click("Apply");
    human.click<QMessageBox>("Yes");
    human.key<QMessageBox>(Qt::Key_Return);
    human.key<QDialog>(Qt::Key_Escape);
    run();
    const auto failed = std::ranges::find_if(notes, [](const note& each) { return each.place.has_value(); });
    ASSERT_NE(failed, notes.end());
    EXPECT_EQ(failed->scene, std::size_t{2});
    EXPECT_EQ(failed->place->x, 1e9);
}

/// Stopped in the midst, the scenes done so far are done and undone together, the others untouched; the next
/// run is not stopped.
TEST_F(Dialogs, StopARunBetweenScenes) {
    choose_language(language::english);
    constexpr auto utm41 = "+proj=utm +zone=41 +datum=WGS84 +units=m +no_defs";
    shown.change([&](project& opened) {
        const polyline line(300, {500000, 6e6});
        opened.append(std::vector<new_scene>(3000, {"Many", true, utm41, line}));
    });
    QTimer stopper;
    QObject::connect(&stopper, &QTimer::timeout, &over, [&] {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* bar = qobject_cast<QProgressDialog*>(each))
                stopper.stop(), bar->findChild<QPushButton*>()->click();
    });
    stopper.start(0);
    load(utm40);
    select_all();
    human.click("Apply");
    human.click<QMessageBox>("Yes");
    human.key<QDialog>(Qt::Key_Escape);
    run();
    const auto done = [this] {
        return std::ranges::count_if(shown.opened()->scenes(), [](const scene& each) {
            return each.caption == "Many" && each.proj4.find("zone=40") != std::string::npos;
        });
    };
    EXPECT_GT(done(), 0);
    EXPECT_LT(done(), 3000);
    EXPECT_EQ(told("stopped: the scenes that were left are as they were"), 1);
    shown.change([](project& opened) { opened.undo(later_changes::respected); });
    EXPECT_EQ(done(), 0);
    EXPECT_FALSE(ending_wished());
}

/// What a bundle says for each of a hundred scenes is one window and a hundred notes; said again by the next
/// piece of work, it is a window again.
TEST_F(Dialogs, SayTheSameOnceInOnePieceOfWork) {
    for (int work = 0; work < 2; ++work) {
        human.key<QMessageBox>(Qt::Key_Return);
        human.begin();
        {
            const auto bar = messages::instance().open_progress();
            for (int i = 0; i < 100; ++i) {
                messages::instance().report_error("<b>no</b>");
                QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            }
        }
        QTest::qWait(1);
        EXPECT_TRUE(human.is_done());
    }
    EXPECT_EQ(told("<b>no</b>"), 200);
}

}  // namespace
}  // namespace oxhost::desktop
