// What the main window's menus hold, and what stands behind each entry in few lines.

#include <QActionGroup>
#include <QFileDialog>
#include <QMessageBox>

#include "desktop/project/export_dialog.h"
#include "desktop/project/history_dialog.h"
#include "desktop/project/import_dialog.h"
#include "desktop/text.h"
#include "desktop/window/language_choice.h"
#include "desktop/window/look.h"
#include "desktop/window/main_window.h"
#include "desktop/window/recent.h"
#include "geodesy/description.h"
#include "geodesy/proj_context.h"

namespace oxhost::desktop {

namespace {

QString project_filter() { return say("Проекты (*.gpkg)", "Projects (*.gpkg)"); }

}  // namespace

void main_window::build_menus() {
    build_project_menu();
    build_view_menu();
    build_utilities_menu();
    build_language_menu();
    build_help_menu();
}

void main_window::build_project_menu() {
    QMenu* menu = actions_.menu(nullptr, {"&Проект", "&Project"});
    actions_.action(menu, {"&Новый…", "&New…"}, QKeySequence::New, [this] { create_project(); });
    actions_.action(menu, {"&Открыть…", "&Open…"}, QKeySequence::Open, [this] { choose_project(); });
    QMenu* recent = actions_.menu(menu, {"&Недавние", "&Recent"});
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { list_recent(recent); });
    menu->addSeparator();
    const auto add = [&](bilingual caption, const QKeySequence& keys, std::function<void()> act) {
        of_a_project_.push_back(actions_.action(menu, caption, keys, std::move(act)));
    };
    add({"&Импорт…", "&Import…"}, QKeySequence("Ctrl+I"), [this] { import({}); });
    add({"&Экспорт…", "&Export…"}, QKeySequence("Ctrl+E"), [this] { export_scenes(document_, this); });
    menu->addSeparator();
    add({"О&тменить последний проход…", "&Undo the last run…"}, QKeySequence::Undo, [this] { undo(); });
    add({"Истори&я…", "&History…"}, QKeySequence("Ctrl+H"),
        [this] { show_history(document_, this, [this] { actions_.attempt([this] { undo(); }); }); });
    add({"&Свойства…", "&Properties…"}, QKeySequence("Alt+Return"),
        [this] { show_properties(document_, this); });
    menu->addSeparator();
    add({"Прочитать &заново", "Re&load"}, QKeySequence::Refresh, [this] { document_.reload(); });
    add({"&Закрыть проект", "&Close project"}, QKeySequence::Close, [this] { document_.close(); });
    menu->addSeparator();
    actions_.action(menu, {"В&ыход", "&Quit"}, QKeySequence::Quit, [this] { close(); });
}

void main_window::build_view_menu() {
    QMenu* menu = actions_.menu(nullptr, {"&Вид", "&View"});
    actions_.action(menu, {"Показать &все линии", "Fit &all lines"}, QKeySequence("Ctrl+0"),
                    [this] { map_->fit_all(); });
    actions_.action(menu, {"Показать в&ыбранные", "Fit &selected lines"}, QKeySequence("Ctrl+Shift+0"),
                    [this] { map_->fit_selection(); });
    QMenu* systems = actions_.menu(menu, {"&Система карты", "&Map's system"});
    connect(systems, &QMenu::aboutToShow, this, [this, systems] { list_systems(systems); });
    menu->addSeparator();
    menu->addAction(message_dock_->toggleViewAction());
    QMenu* looks = actions_.menu(menu, {"&Оформление", "&Look"});
    auto* one = new QActionGroup(this);
    const auto add = [&](bilingual caption, look_kind look) {
        QAction* made = actions_.choice(looks, caption, [look](bool) { use_look(look); });
        one->addAction(made)->setChecked(remembered_look() == look);
    };
    add({"&Как в системе", "As the &system"}, look_kind::system);
    add({"&Светлое", "&Light"}, look_kind::light);
    add({"&Тёмное", "&Dark"}, look_kind::dark);
}

void main_window::build_utilities_menu() {
    QMenu* menu = actions_.menu(nullptr, {"&Утилиты", "&Utilities"});
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { list_utilities(menu); });
    list_utilities(menu);
}

void main_window::list_utilities(QMenu* menu) {
    menu->clear();
    const auto offered = utilities_->offered();
    for (std::size_t i = 0; i < offered.size(); ++i) {
        QAction* made = menu->addAction(offered[i].icon, offered[i].caption);
        if (i < 9) made->setShortcut(QKeySequence(QString("Ctrl+%1").arg(i + 1)));
        connect(made, &QAction::triggered, this, [this, i] { actions_.attempt([&] { run(i); }); });
    }
    if (offered.empty()) menu->addAction(say("Пусто", "None"))->setEnabled(false);
    menu->addSeparator();
    QAction* made = menu->addAction(say("&Подобрать проекцию…", "&Guess the projection…"));
    made->setShortcut(QKeySequence("Ctrl+G"));
    connect(made, &QAction::triggered, this, [this] { actions_.attempt([this] { guess(); }); });
}

void main_window::build_language_menu() {
    QMenu* menu = actions_.menu(nullptr, {"&Язык", "&Language"});
    auto* one = new QActionGroup(this);
    const auto add = [&](bilingual caption, language wanted) {
        QAction* made = actions_.choice(menu, caption, [wanted](bool) { switch_language(wanted); });
        one->addAction(made)->setChecked(current_language() == wanted);
    };
    add({"&Русский", "&Русский"}, language::russian);
    add({"&English", "&English"}, language::english);
}

void main_window::build_help_menu() {
    QMenu* menu = actions_.menu(nullptr, {"&Справка", "&Help"});
    actions_.action(menu, {"&О программе", "&About"}, {}, [this] {
        const proj_versions proj = versions_of_proj();
        QMessageBox::about(this, "oxhost",
                           QString("oxhost %1\nPROJ %2 (%3)\nQt %4")
                               .arg(OXHOST_VERSION, to_qt(proj.library), to_qt(proj.database), qVersion()));
    });
}

void main_window::create_project() {
    QString file =
        QFileDialog::getSaveFileName(this, say("Новый проект", "New project"), {}, project_filter());
    if (file.isEmpty()) return;
    if (!file.endsWith(".gpkg", Qt::CaseInsensitive)) file += ".gpkg";
    document_.create(to_path(file));  // refuses a file that is there
    remember_recent(to_path(file));
}

void main_window::import(const std::vector<std::filesystem::path>& files) {
    if (!document_.opened()) create_project();
    if (document_.opened()) import_files(document_, files, this);
}

void main_window::choose_project() {
    const QString file =
        QFileDialog::getOpenFileName(this, say("Открыть проект", "Open a project"), {}, project_filter());
    if (!file.isEmpty()) open(to_path(file));
}

void main_window::list_recent(QMenu* menu) {
    menu->clear();
    for (const auto& file : recent_files())
        connect(menu->addAction(name_of_file(file)), &QAction::triggered, this, [this, file] { open(file); });
    if (menu->isEmpty()) menu->addAction(say("Пусто", "None"))->setEnabled(false);
}

void main_window::list_systems(QMenu* menu) {
    menu->clear();
    const auto add = [&](const QString& caption, const std::string& proj4) {
        QAction* made = menu->addAction(caption);
        made->setCheckable(true);
        made->setChecked(map_->system() == proj4);
        connect(made, &QAction::triggered, this,
                [this, proj4] { actions_.attempt([&] { map_->set_system(proj4); }); });
    };
    add(say("Долгота и широта, WGS 84", "Longitude and latitude, WGS 84"), map_degrees);
    for (const std::string& each : map_->projections())
        add(to_qt(short_description(each, current_language())), each);
}

}  // namespace oxhost::desktop
