#include "desktop/project/export_dialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QVBoxLayout>
#include <stdexcept>

#include "desktop/project/cancellable_bar.h"
#include "desktop/text.h"
#include "exchange/exchange.h"
#include "run/export_run.h"

namespace oxhost::desktop {

namespace {

constexpr auto folder_key = "export/folder";

class export_dialog final : public QDialog {
public:
    export_dialog(std::size_t scenes, std::size_t selected, QWidget* over) : QDialog(over) {
        setWindowTitle(say("Экспорт линий", "Export lines"));
        auto* column = new QVBoxLayout(this);
        auto* form = new QFormLayout;
        auto* browse = new QPushButton(say("Выбрат&ь…", "&Browse…"));
        browse->setAutoDefault(false);
        connect(browse, &QPushButton::clicked, this, &export_dialog::browse);
        auto* file = new QHBoxLayout;
        file->addWidget(&file_, 1);
        file->addWidget(browse);
        form->addRow(say("&Файл:", "&File:"), file);
        qobject_cast<QLabel*>(form->labelForField(file))->setBuddy(&file_);
        file_.setAccessibleName(say("Файл", "File"));
        file_.setToolTip(
            say("GeoPackage (.gpkg): слой на каждую проекцию; Shapefile (.shp): одна проекция; GeoJSON: "
                "долгота и широта WGS 84, если не указана проекция",
                "GeoPackage (.gpkg): a layer for each projection; Shapefile (.shp): one projection; GeoJSON: "
                "longitude and latitude on WGS 84 unless a projection is given"));
        form->addRow(say("&Проекция:", "&Projection:"), &target_);
        target_.setPlaceholderText(say("оставить как есть", "leave as it is"));
        target_.setAccessibleName(say("Проекция", "Projection"));
        target_.setToolTip(say("EPSG:n или просто n, текст proj4, файл .pj4 или .prj",
                               "EPSG:n or n alone, a proj4 text, a .pj4 or .prj file"));
        all_.setText(say("&Все сцены (%1)", "&All scenes (%1)").arg(scenes));
        selected_.setText(say("В&ыбранные (%1)", "&Selected ones (%1)").arg(selected));
        selected_.setEnabled(selected > 0);
        (selected > 1 ? selected_ : all_).setChecked(true);
        form->addRow(say("Сцены:", "Scenes:"), &all_);
        form->addRow(QString(), &selected_);
        column->addLayout(form);
        column->addStretch();
        auto* buttons = new QDialogButtonBox;
        auto* ok = buttons->addButton(say("Экспорт", "Export"), QDialogButtonBox::AcceptRole);
        buttons->addButton(say("Отмена", "Cancel"), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(&file_, &QLineEdit::textChanged, ok,
                [ok](const QString& now) { ok->setEnabled(!now.isEmpty()); });
        ok->setEnabled(false);
        ok->setDefault(true);
        column->addWidget(buttons);
        resize(fontMetrics().averageCharWidth() * 80, sizeHint().height());
    }

    bool only_selected() const { return selected_.isChecked(); }
    oxhost::run::export_wish wish() const {
        oxhost::run::export_wish asked;
        asked.out = to_path(file_.text());
        if (const auto target = target_.text().trimmed(); !target.isEmpty())
            asked.target = target.toStdString();
        return asked;
    }

private:
    void browse() {
        QFileDialog window(this, say("Файл экспорта", "File to export to"),
                           QSettings().value(folder_key).toString());
        window.setAcceptMode(QFileDialog::AcceptSave);
        window.setOption(QFileDialog::DontConfirmOverwrite);  // asked when the export begins
        window.setNameFilters({"GeoPackage (*.gpkg)", "Shapefile (*.shp)", "GeoJSON (*.geojson)"});
        window.setDefaultSuffix("gpkg");
        connect(&window, &QFileDialog::filterSelected, &window, [&window](const QString& chosen) {
            window.setDefaultSuffix(chosen.section("(*.", 1).chopped(1));
        });
        if (!window.exec() || window.selectedFiles().isEmpty()) return;
        const QString file = window.selectedFiles().front();
        QSettings().setValue(folder_key, QFileInfo(file).absolutePath());
        file_.setText(file);
    }

    QLineEdit file_, target_;
    QRadioButton all_, selected_;
};

/// False when what stands there is to stay.
bool may_replace(const std::filesystem::path& out) {
    std::error_code ignored;
    return !std::filesystem::exists(out, ignored) ||
           messages::instance().ask(out.string() +
                                    words(": файл уже есть. Заменить?", ": exists already. Replace it?"));
}

}  // namespace

void export_scenes(document& shown, QWidget* over) {
    project& opened = *shown.opened();
    export_dialog window(opened.scenes().size(), shown.selected().size(), over);
    while (window.exec()) try {
            auto asked = window.wish();
            if (!may_replace(asked.out)) continue;
            asked.overwrite = true;
            cancellable_bar bar(over);
            asked.progress = [&](double share) { bar.tell(name_of_file(asked.out.filename()), share); };
            std::vector<scene*> scenes;
            if (window.only_selected())
                for (const std::size_t each : shown.selected()) scenes.push_back(opened.at(each));
            else
                scenes = oxhost::run::all_scenes(opened);
            const auto result = oxhost::run::export_scenes(opened, std::move(scenes), asked);
            note told;
            for (const std::string& each : result.warnings) {
                told.text = say("предупреждение: ", "warning: ") + to_qt(each);
                shown.say(told);
            }
            told.text = name_of_file(asked.out) + ": " + to_qt(result.summary);
            shown.say(told);
            return;
        } catch (const cancelled&) {
            note told;
            told.text = say("экспорт отменён, ничего не записано", "export cancelled, nothing was written");
            shown.say(told);
            return;
        } catch (const std::runtime_error& refused) {  // the choices stay for another try
            messages::instance().report_error(refused.what());
        }
}

}  // namespace oxhost::desktop
