// A preview tells what the command's dry run tells, and leaves project, open dialog, messages and journal
// alone.

#include "desktop/decide/preview.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <nlohmann/json.hpp>

#include "base/files.h"
#include "headless/scripted_user.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/preview.h"
#include "run/utility_run.h"
#include "session/console_messages.h"
#include "testing/scratch_folder.h"

namespace oxhost::desktop {
namespace {

constexpr auto pulkovo =
    "+proj=tmerc +lat_0=0 +lon_0=57 +k=1 +x_0=10500000 +y_0=0 +ellps=krass "
    "+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +units=m +no_defs";
constexpr auto utm40 = "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs";

/// One scene of each kind: moved over a change of datum, assigned, failing, already there.
struct Preview : testing::Test {
    Preview() {
        choose_language(language::english);
        shown.create(file);
        shown.change([](project& opened) {
            const new_scene added[] = {
                {"Moved", true, pulkovo, polyline{{10500000, 6000000}, {10520000, 6010000}}},
                {"Assigned", true, "", polyline{{500000, 6000000}, {510000, 6000000}}},
                {"Fails", true, pulkovo, polyline{{10500000, 6000000}, {1e12, 1e12}}},
                {"There", true, utm40, polyline{{500000, 6000000}, {510000, 6000000}}}};
            opened.append(added);
        });
        before = *read_file(file);
    }
    ~Preview() override { choose_language({}); }

    nlohmann::json dry_run() {
        QProcess command;
        const auto report = folder / "report.json";
        command.start(OXHOST_PROGRAM,
                      {"reproject", QString::fromStdString(file), "--all", "--to", utm40, "--yes",
                       "--dry-run", "--on-error", "skip", "--report", QString::fromStdString(report),
                       "--bundle", OXHOST_BUNDLE, "--lang", "en"});
        EXPECT_TRUE(command.waitForFinished(60000));
        return nlohmann::json::parse(read_file(report).value_or("{}"));
    }

    scratch_folder folder;
    std::filesystem::path file = folder / "p.gpkg";
    std::string before;
    document shown;
};

TEST_F(Preview, TellsWhatTheDryRunTells) {
    const auto told = run::foresee(*shown.opened(), {{0, 1, 2, 3}, utm40, OXHOST_BUNDLE});
    const auto report = dry_run();
    ASSERT_EQ(report.at("scenes").size(), told.scenes.size());
    const auto same = [](const nlohmann::json& figure, const std::optional<double>& seen) {
        return seen ? figure == nlohmann::json(*seen) : figure.is_null();
    };
    for (std::size_t i = 0; i < told.scenes.size(); ++i) {
        const auto& row = told.scenes[i];
        const auto& scene = report["scenes"][i];
        SCOPED_TRACE(row.caption);
        EXPECT_EQ(scene["outcome"], name_of(row.comes_to));
        EXPECT_TRUE(same(scene["length_before_m"], row.judged.length_before));
        EXPECT_TRUE(same(scene["length_after_m"], row.judged.length_after));
        EXPECT_TRUE(same(scene["scale_error_percent"], row.judged.scale_error_percent));
        EXPECT_EQ(scene["failure"].is_null(), !row.failure);
        EXPECT_EQ(scene["operation"].is_null(), !row.judged.operation);
        if (row.way) {
            EXPECT_NEAR(row.way->metres, scene["largest_datum_shift_m"].get<double>(), 0.5);
        }
    }
    EXPECT_EQ(report["warnings"], nlohmann::json(told.warnings));
    EXPECT_EQ(told.scenes[0].comes_to, run::outcome::reprojected);
    EXPECT_GT(told.scenes[0].way->metres, 50) << "the datum's";
    EXPECT_EQ(told.scenes[1].comes_to, run::outcome::assigned);
    EXPECT_TRUE(told.will_ask);
    EXPECT_EQ(told.scenes[2].comes_to, run::outcome::failed);
    EXPECT_EQ(*read_file(file), before);
}

/// As from the button in the utility's dialog: the utility goes on afterwards as if nothing had been.
TEST_F(Preview, WorksInsideTheOpenUtility) {
    headless::scripted_user person;
    shell::bundle_host bundle(OXHOST_BUNDLE, person);
    struct silent final : message_policy {
        void show(message_kind, const std::string&) override {}
        std::optional<bool> ask(const std::string&) override { return true; }
        std::unique_ptr<progress_display> open_progress() override { return nullptr; }
    };
    messages::instance().use(std::make_unique<silent>());
    replace_file(folder / "t.pj4", utm40);
    run::foreseen told;
    shown.change([&](project& opened) {
        person.in_dialog(run::plug_in_text::utility, [&](headless::dialog_hands& hands) {
            person.answer_file(folder / "t.pj4");
            hands.click(run::plug_in_text::load());
            const std::uint32_t wanted[] = {0, 3};
            headless::check_rows(*hands.only(shell::node_kind::outline).rows(), wanted);
            messages::instance().inform("before");
            const auto target =
                run::target_of(hands.dialog(), [&](const auto& answer) { person.answer_file(answer); });
            const auto scenes = run::checked_scenes(hands.dialog(), opened);
            EXPECT_EQ(scenes, (std::vector<std::size_t>{0, 3}));
            told = run::foresee(opened, {scenes, target, OXHOST_BUNDLE});
            EXPECT_EQ(opened.at(0)->proj4, pulkovo);
            EXPECT_EQ(messages::instance().shown().size(), 1u) << "those of the outer work";
            EXPECT_EQ(current_project(), &opened);
            hands.press(shell::button_role::accept);
        });
        const auto results = run::run_utility(&opened, bundle, run::plug_in_text::utility);
        EXPECT_EQ(results.at(0).came_to, run::outcome::reprojected);
        EXPECT_EQ(results.at(2).came_to, run::outcome::not_attempted);
    });
    messages::instance().use(std::make_unique<console_messages>(console::standard(), console_options{}));
    ASSERT_EQ(told.scenes.size(), 2u);
    EXPECT_EQ(told.scenes[0].judged.length_after.has_value(), true);
    EXPECT_EQ(shown.opened()->at(0)->proj4, utm40);
}

TEST_F(Preview, ShowsFailuresFirst) {
    QTimer::singleShot(50, [] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_TRUE(window);
        auto* table = window->findChild<QTableWidget*>();
        EXPECT_EQ(table->item(0, 1)->text(), "Fails");
        EXPECT_EQ(table->item(1, 2)->text(), "reproject");
        table->sortByColumn(0, Qt::DescendingOrder);
        EXPECT_EQ(table->item(0, 1)->text(), "There");
        if (const auto picture = qgetenv("OX_PICTURE"); !picture.isEmpty()) window->grab().save(picture);
        QTest::keyClick(window, Qt::Key_Escape);
    });
    preview(shown, {0, 1, 2, 3}, utm40, nullptr, OXHOST_BUNDLE);
    EXPECT_EQ(*read_file(file), before);
}

}  // namespace
}  // namespace oxhost::desktop
