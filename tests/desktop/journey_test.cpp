// A person's way through the window, once by mouse and once by keyboard, beside the same job by command line.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <cstdlib>

#include "desktop/elements/table_view.h"
#include "desktop/text.h"
#include "desktop/window/language_choice.h"
#include "desktop/window/main_window.h"
#include "run/plug_in_texts.h"
#include "testing/case_name.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

namespace texts = run::plug_in_text;

/// What is done at the window on top, step by step, while the program waits in it.
class person : public QObject {
public:
    using step = std::function<bool(QWidget* top)>;  ///< true when it is done
    explicit person(std::vector<step> steps) : steps_(std::move(steps)) { look(); }
    bool is_through() const { return next_ == steps_.size(); }

private:
    void look() {
        // A timer of its own each time: a step may open the window that the next one is for.
        if (!is_through()) QTimer::singleShot(20, this, &person::look);
        QWidget* top = QApplication::activeModalWidget();
        if (!top || is_through() || qobject_cast<QProgressDialog*>(top)) return;
        const std::size_t now = next_++;
        if (steps_[now](top)) return;
        next_ = now;
        if (++vain_ < 1500) return;
        ADD_FAILURE() << "step " << now << " has nothing to do in \"" << top->windowTitle().toStdString()
                      << '"';
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<QDialog*>(each)) dialog->reject();
    }

    std::vector<step> steps_;
    std::size_t next_ = 0;
    int vain_ = 0;
};

QPushButton* button(QWidget* top, std::string_view caption) {
    for (auto* each : top->findChildren<QPushButton*>())
        if (each->isVisible() && each->text().remove('&') == to_qt(caption)) return each;
    return nullptr;
}

person::step click(std::string_view caption) {
    return [=](QWidget* top) {
        QPushButton* found = button(top, caption);
        if (found) QTest::mouseClick(found, Qt::LeftButton);
        return found != nullptr;
    };
}
person::step click_tool(const char* id) {
    return [=](QWidget* top) {
        auto* action = top->findChild<QAction*>(id);
        auto* bar = top->findChild<QToolBar*>();
        if (!action || !bar) return false;
        QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
        return true;
    };
}
/// The control of that name must be reached by Tab.
person::step press_with_tab(std::string_view name, Qt::Key key = Qt::Key_Space) {
    return [=](QWidget* top) {
        for (int i = 0; i < 60; ++i) {
            QWidget* at = top->focusWidget();
            if (at && at->accessibleName().remove('&') == to_qt(name)) {
                QTest::keyClick(at, key);
                return true;
            }
            QTest::keyClick(at ? at : top, Qt::Key_Tab);
        }
        ADD_FAILURE() << "Tab does not lead to " << name;
        return true;
    };
}
person::step type_file(const std::string& file) {
    return [=](QWidget* top) {
        auto* dialog = qobject_cast<QFileDialog*>(top);
        if (!dialog) return false;
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        name->setText(QString::fromStdString(file));
        QTest::keyClick(name, Qt::Key_Return);
        return true;
    };
}
person::step answer(QMessageBox::StandardButton with, QStringList& read) {
    return [with, &read](QWidget* top) {
        auto* box = qobject_cast<QMessageBox*>(top);
        if (!box) return false;
        read << box->text();
        if (with == QMessageBox::Yes) {
            EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        }
        QTest::keyClick(box->button(with), Qt::Key_Space);
        return true;
    };
}

struct journey_case {
    const char* name;
    language spoken;
    bool by_keyboard;
};

TEST_CASES(Journey, ReprojectsAsTheCommandLineAndGoesBack, journey_case, {"Mouse", language::english, false},
           {"Keyboard", language::english, true}, {"MouseRussian", language::russian, false},
           {"KeyboardRussian", language::russian, true}) {
    const scratch_folder folder;
    const auto command = [](const std::string& words) {
        return std::system((OXHOST_PROGRAM " " + words + " >/dev/null 2>&1").c_str());
    };
    const std::string seen = folder / "seen.gpkg", typed = folder / "typed.gpkg";
    ASSERT_EQ(command("import " + seen + " " SAMPLES "/urals.geojson"), 0);
    std::filesystem::copy_file(seen, typed);
    write_bytes(folder / "goal.pj4", "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs");
    ASSERT_EQ(command("reproject " + typed + " --all --yes --to '" + (folder / "goal.pj4") + "'"), 0);

    switch_language(c.spoken);
    main_window window;
    window.show();
    window.open(seen);
    const auto texts_of = [](project& opened) {
        std::vector<std::pair<std::string, section_line>> all;
        for (const scene& each : opened.scenes()) all.emplace_back(each.proj4, opened.read_line(each));
        return all;
    };
    const auto before = texts_of(*window.shown().opened());
    const std::string apply = words("Применить", "Apply");

    QStringList read;
    std::vector<person::step> steps;
    if (c.by_keyboard)
        steps = {press_with_tab(texts::load()), type_file(folder / "goal.pj4"),
                 [](QWidget* top) {
                     auto* table = top->findChild<table_view*>();
                     if (!table) return false;
                     for (int i = 0; i < 60 && top->focusWidget() != table; ++i)
                         QTest::keyClick(top->focusWidget() ? top->focusWidget() : top, Qt::Key_Tab);
                     EXPECT_EQ(top->focusWidget(), table);
                     QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
                     QTest::keyClick(table, Qt::Key_Space);
                     return true;
                 },
                 [=](QWidget* top) {
                     QTest::keyClick(button(top, apply), Qt::Key_Space);
                     return true;
                 }};
    else
        steps = {click(texts::load()), type_file(folder / "goal.pj4"), click_tool(texts::select_all_tool),
                 click(apply)};
    steps.push_back(answer(QMessageBox::Ok, read));
    if (c.by_keyboard)
        steps.push_back([](QWidget* top) {
            QTest::keyClick(top, Qt::Key_Escape);
            return true;
        });
    else
        steps.push_back(click(words("Закрыть", "Close")));
    const person acting(steps);
    QMenu* utilities = nullptr;
    for (QAction* each : window.menuBar()->actions())
        if (each->text() == say("&Утилиты", "&Utilities")) utilities = each->menu();
    ASSERT_TRUE(utilities);
    utilities->actions().front()->trigger();
    EXPECT_TRUE(acting.is_through());

    const auto outside = project::open(typed, open_mode::scratch);
    EXPECT_EQ(texts_of(*window.shown().opened()), texts_of(*outside));
    EXPECT_NE(texts_of(*outside), before);
    EXPECT_FALSE(read.isEmpty());

    const person undoing({answer(QMessageBox::Yes, read)});
    QPushButton* undo = button(&window, words("Отменить", "Undo"));
    ASSERT_TRUE(undo);
    QTest::mouseClick(undo, Qt::LeftButton);
    EXPECT_EQ(texts_of(*window.shown().opened()), before);
    switch_language(language::english);
}

}  // namespace
}  // namespace oxhost::desktop
