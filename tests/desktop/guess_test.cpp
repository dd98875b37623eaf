// A line without projection is given one of the guesses, through the utility.

#include <gtest/gtest.h>

#include <QMenuBar>
#include <QMessageBox>
#include <QTreeWidget>
#include <cstdlib>

#include "desktop/text.h"
#include "desktop/window/language_choice.h"
#include "desktop/window/main_window.h"
#include "person.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

/// The line is that of `echo 54 57 | cs2cs EPSG:4284 EPSG:28410 -f %.0f` and a place near it, in the midst of
/// the project's other lines.
TEST(Guess, IsAssignedThroughTheUtility) {
    const scratch_folder folder;
    const std::string file = folder / "p.gpkg";
    ASSERT_EQ(
        std::system((OXHOST_PROGRAM " import " + file + " " SAMPLES "/urals.geojson >/dev/null").c_str()), 0);
    switch_language(language::english);
    main_window window;
    window.show();
    window.open(file);
    window.shown().change([](project& opened) {
        const new_scene added[] = {
            {"Lost", true, "", polyline{{10500000, 5986000}, {10510000, 5990000}, {10520000, 6000000}}}};
        opened.append(added);
    });
    const auto* lost = &window.shown().opened()->scenes().back();
    const std::size_t number = lost->index;
    person human;
    human.in<QDialog>([](QDialog& dialog) {
        auto* list = dialog.findChild<QTreeWidget*>();
        ASSERT_TRUE(list);
        const auto found = list->findItems("EPSG:28410", Qt::MatchExactly, 0);
        ASSERT_EQ(found.size(), 1);
        EXPECT_LT(list->indexOfTopLevelItem(found.front()), 5) << "among the first";
        EXPECT_TRUE(found.front()->text(2).startsWith("54.0")) << found.front()->text(2).toStdString();
        list->setCurrentItem(found.front());
        if (const auto picture = qgetenv("OX_PICTURE"); !picture.isEmpty()) dialog.grab().save(picture);
    });
    human.click("Assign");
    human.click<QMessageBox>("Yes");
    human.key<QMessageBox>(Qt::Key_Return);
    human.key<QDialog>(Qt::Key_Escape);
    human.begin();
    for (QAction* each : window.menuBar()->actions()[2]->menu()->actions())
        if (each->shortcut() == QKeySequence("Ctrl+G")) each->trigger();
    EXPECT_TRUE(human.is_done());
    EXPECT_NE(window.shown().opened()->at(number)->proj4.find("+lon_0=57"), std::string::npos)
        << window.shown().opened()->at(number)->proj4;
    EXPECT_EQ(window.shown().opened()->past_runs().size(), 1u) << "it can be undone";
}

}  // namespace
}  // namespace oxhost::desktop
