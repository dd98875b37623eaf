#include "desktop/project/import_dialog.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <stdexcept>

#include "desktop/project/cancellable_bar.h"
#include "desktop/text.h"
#include "run/import_run.h"

namespace oxhost::desktop {

namespace {

constexpr auto folder_key = "import/folder";

class import_dialog final : public QDialog {
public:
    import_dialog(const std::vector<std::filesystem::path>& files, QWidget* over) : QDialog(over) {
        setWindowTitle(say("Импорт линий", "Import lines"));
        auto* column = new QVBoxLayout(this);
        auto* label = new QLabel(say("&Файлы:", "&Files:"));
        label->setBuddy(&files_);
        column->addWidget(label);
        column->addWidget(&files_);
        files_.setAccessibleName(say("Файлы", "Files"));
        files_.setSelectionMode(QAbstractItemView::ExtendedSelection);
        column->addLayout(file_buttons());
        auto* form = new QFormLayout;
        add(form, say("&Проекция:", "&Projection:"), target_, say("как в файлах", "as the files say"));
        target_.setToolTip(say("EPSG:n или просто n, текст proj4, файл .pj4 или .prj",
                               "EPSG:n or n alone, a proj4 text, a .pj4 or .prj file"));
        add(form, say("С&лой:", "&Layer:"), layer_, say("все", "all"));
        profiles_.setText(say("&Сцены являются разрезами", "The &scenes are profiles"));
        profiles_.setChecked(true);
        form->addRow(&profiles_);
        column->addLayout(form);
        column->addWidget(point_fields());
        auto* buttons = new QDialogButtonBox;
        ok_ = buttons->addButton(say("Импорт", "Import"), QDialogButtonBox::AcceptRole);
        buttons->addButton(say("Отмена", "Cancel"), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        column->addWidget(buttons);
        for (const auto& each : files) files_.addItem(name_of_file(each));
        ok_->setEnabled(files_.count() > 0);
        ok_->setDefault(true);
        resize(fontMetrics().averageCharWidth() * 80, sizeHint().height());
    }

    oxhost::run::import_order order() const {
        oxhost::run::import_order asked;
        for (int i = 0; i < files_.count(); ++i) asked.sources.push_back(to_path(files_.item(i)->text()));
        const auto typed = [](const QLineEdit& input) { return input.text().trimmed().toStdString(); };
        if (!typed(target_).empty()) asked.target = typed(target_);
        asked.not_profile = !profiles_.isChecked();
        asked.layer = typed(layer_);
        asked.points = {typed(line_), typed(order_), typed(x_), typed(y_), typed(z_)};
        return asked;
    }

    void ask_for_files() {
        const auto more = QFileDialog::getOpenFileNames(
            this, say("Файлы с линиями", "Files with lines"), QSettings().value(folder_key).toString(),
            say("Линии и таблицы точек", "Lines and tables of points") +
                " (*.geojson *.json *.gpkg *.shp *.kml *.gml *.tab *.mif *.dxf *.csv);;" +
                say("Все файлы", "All files") + " (*)");
        if (more.isEmpty()) return;
        QSettings().setValue(folder_key, QFileInfo(more.front()).absolutePath());
        files_.addItems(more);
        ok_->setEnabled(true);
    }

private:
    static void add(QFormLayout* form, const QString& caption, QLineEdit& input, const QString& otherwise) {
        form->addRow(caption, &input);
        input.setPlaceholderText(otherwise);
        input.setAccessibleName(QString(caption).remove('&').remove(':'));
    }

    QHBoxLayout* file_buttons() {
        auto* row = new QHBoxLayout;
        auto* more = new QPushButton(say("&Добавить…", "&Add…"));
        auto* fewer = new QPushButton(say("&Убрать", "&Remove"));
        connect(more, &QPushButton::clicked, this, &import_dialog::ask_for_files);
        connect(fewer, &QPushButton::clicked, this, [this] {
            qDeleteAll(files_.selectedItems());
            ok_->setEnabled(files_.count() > 0);
        });
        for (QPushButton* each : {more, fewer}) {
            each->setAutoDefault(false);
            row->addWidget(each);
        }
        row->addStretch();
        return row;
    }

    QGroupBox* point_fields() {
        auto* group = new QGroupBox(say("Таблицы точек: поля", "Tables of points: fields"));
        auto* form = new QFormLayout(group);
        const QString found = say("по обычным именам", "by their usual names");
        add(form, say("Л&иния:", "L&ine:"), line_, found);
        add(form, say("Поря&док вдоль линии:", "&Order along the line:"), order_, found);
        add(form, say("&X, восточная или долгота:", "&X, easting or longitude:"), x_, found);
        add(form, say("&Y, северная или широта:", "&Y, northing or latitude:"), y_, found);
        add(form, say("&Z, высота:", "&Z, height:"), z_, found);
        return group;
    }

    QListWidget files_;
    QLineEdit target_, layer_, line_, order_, x_, y_, z_;
    QCheckBox profiles_;
    QPushButton* ok_ = nullptr;
};

}  // namespace

void import_files(document& shown, const std::vector<std::filesystem::path>& files, QWidget* over) {
    import_dialog window(files, over);
    if (files.empty()) window.ask_for_files();
    while (window.exec()) try {
            auto asked = window.order();
            cancellable_bar bar(over);
            asked.progress = [&](std::size_t source, std::size_t scenes) {
                bar.tell(name_of_file(asked.sources[source].filename()) +
                         say(": сцен: %1", ": %1 scenes").arg(scenes));
            };
            std::vector<std::string> lines;
            shown.change([&](project& opened) { lines = oxhost::run::import_into(opened, asked); });
            for (const std::string& each : lines) {
                note told;
                told.text = to_qt(each);
                shown.say(told);
            }
            return;
        } catch (const cancelled&) {
            note told;
            told.text = say("импорт отменён, ничего не добавлено", "import cancelled, nothing was added");
            shown.say(told);
            return;
        } catch (const std::runtime_error& refused) {  // the choices stay for another try
            messages::instance().report_error(refused.what());
        }
}

}  // namespace oxhost::desktop
