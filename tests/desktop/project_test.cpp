// Import, export and history as windows, beside the same jobs by command line.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <cstdlib>

#include "base/files.h"
#include "desktop/dialogs/window_messages.h"
#include "desktop/project/export_dialog.h"
#include "desktop/project/history_dialog.h"
#include "desktop/project/import_dialog.h"
#include "desktop/text.h"
#include "person.h"
#include "session/console_messages.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

constexpr auto urals = SAMPLES "/urals.geojson";

struct ProjectActions : testing::Test {
    ProjectActions() {
        choose_language(language::english);
        messages::instance().use(std::make_unique<window_messages>(shown, user));
        QObject::connect(&shown, &document::said, &over, [this](const note& told) { said << told.text; });
        shown.create(file);
    }
    ~ProjectActions() override {
        EXPECT_TRUE(human.is_done());
        messages::instance().use(std::make_unique<console_messages>(console::standard(), console_options{}));
        choose_language({});
    }
    int command(const std::string& words) {
        return std::system((OXHOST_PROGRAM " " + words + " --quiet >" + (folder / "said")).c_str());
    }
    void type(const QString& field, const std::filesystem::path& text) {
        human.in<QDialog>([=](QDialog& window) {
            for (auto* each : window.findChildren<QLineEdit*>())
                if (each->accessibleName() == field) each->setText(name_of_file(text));
        });
    }

    scratch_folder folder;
    std::filesystem::path file = folder / "p.gpkg";
    QStringList said;
    QWidget over;
    document shown;
    window_user user{&over};
    person human;
};

TEST_F(ProjectActions, ImportAndExportAsTheCommandLine) {
    const std::filesystem::path out = folder / "seen.geojson";
    type("Projection", "EPSG:99999999");
    human.click("Import");
    human.in<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("99999999")) << box.text().toStdString();
        box.close();
    });
    type("Projection", "");  // the dialog is there still, with its choices
    human.click("Import");
    human.begin();
    import_files(shown, {urals}, &over);
    ASSERT_EQ(shown.opened()->scenes().size(), 6u);
    EXPECT_TRUE(said.back().contains("urals.geojson: 6 scenes")) << said.back().toStdString();

    type("File", out);
    type("Projection", "EPSG:28410");
    human.click("Export");
    human.begin();
    export_scenes(shown, &over);
    ASSERT_EQ(command("import " + (folder / "typed.gpkg") + ' ' + urals), 0);
    ASSERT_EQ(command("export " + (folder / "typed.gpkg") + ' ' + (folder / "typed.geojson") + " --to 28410"),
              0);
    EXPECT_EQ(read_file(out), read_file(folder / "typed.geojson"));

    const auto before = read_file(out);
    type("File", out);
    human.click("Export");
    human.key<QMessageBox>(Qt::Key_Return);  // which is no
    type("File", file);
    human.click("Export");
    human.click<QMessageBox>("Yes");
    human.in<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("never replaced")) << box.text().toStdString();
        box.close();
    });
    human.key<QDialog>(Qt::Key_Escape);
    human.begin();
    export_scenes(shown, &over);
    EXPECT_EQ(read_file(out), before);
}

TEST_F(ProjectActions, ACancelledImportLeavesTheProjectAsItWas) {
    std::string many = R"({"type":"FeatureCollection","features":[)";
    for (int i = 0; i < 20000; ++i)
        many +=
            std::string(i ? "," : "") +
            R"({"type":"Feature","properties":{},"geometry":{"type":"LineString","coordinates":[[57,54],[58,55]]}})";
    write_bytes(folder / "many.geojson", many + "]}");
    QTimer canceller;
    QObject::connect(&canceller, &QTimer::timeout, &over, [&] {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (auto* bar = qobject_cast<QProgressDialog*>(each)) canceller.stop(), bar->cancel();
    });
    canceller.start(0);
    human.click("Import");
    human.begin();
    import_files(shown, {folder / "many.geojson"}, &over);
    EXPECT_EQ(said.back(), "import cancelled, nothing was added");
    EXPECT_EQ(shown.opened()->scenes().size(), 0u);
    EXPECT_TRUE(shown.opened()->fields().empty());
}

TEST_F(ProjectActions, HistoryListsRunsAndTakesThemBack) {
    shown.close();
    ASSERT_EQ(command("import " + file.string() + ' ' + urals), 0);
    for (const char* target : {"32640", "28410"})
        ASSERT_EQ(command("reproject " + file.string() + " --all --yes --to " + target), 0);
    shown.open(file);
    int asked = 0;
    human.in<QDialog>([&](QDialog& window) {
        auto* table = window.findChild<QTableWidget*>();
        ASSERT_EQ(table->rowCount(), 2);
        EXPECT_TRUE(table->item(0, 1)->text().contains("zone 10")) << table->item(0, 1)->text().toStdString();
        EXPECT_TRUE(table->item(1, 1)->text().contains("zone 40")) << "the older one";
    });
    human.click(QString::fromUtf8("Undo the newest…"));
    human.in<QDialog>([](QDialog& window) {
        EXPECT_EQ(window.findChild<QTableWidget*>()->rowCount(), 1);
        window.close();
    });
    human.begin();
    show_history(shown, &over, [&] {
        ++asked;
        shown.change([](project& opened) { opened.undo(later_changes::respected); });
    });
    EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace oxhost::desktop
