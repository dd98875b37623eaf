#include "desktop/dialogs/window_user.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>

#include "desktop/dialogs/bundle_dialog.h"
#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

constexpr auto folder_key = "dialogs/folder";

/// "Projections|*.pj4;*.prj|All|*.*" as "Projections (*.pj4 *.prj);;All (*)".
QString filter_of(const std::string& pairs) {
    const QStringList parts = to_qt(pairs).split('|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(';', ' ').replace("*.*", "*");
        filters << parts[i].section('(', 0, 0).trimmed() + " (" + patterns + ')';
    }
    return filters.join(";;");
}

}  // namespace

void window_user::serve(shell::open_dialog& dialog) {
    bundle_dialog window(dialog, top());
    if (on_opened) on_opened(dialog, window.buttons());
    shown_.push_back(&window);
    window.exec();
    shown_.pop_back();
}

std::optional<std::filesystem::path> window_user::choose_file(const shell::file_question& question) {
    if (answer_) return std::exchange(answer_, std::nullopt);
    QFileDialog window(top(), question.to_save ? say("Сохранить", "Save") : say("Открыть", "Open"),
                       QSettings().value(folder_key).toString(), filter_of(question.filter));
    window.setAcceptMode(question.to_save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    window.setFileMode(question.to_save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    window.setOption(QFileDialog::DontUseNativeDialog);
    // A name without an extension gets that of the chosen filter.
    const auto complete = [&window](const QString& chosen) {
        window.setDefaultSuffix(chosen.section("(*.", 1).section(QRegularExpression("[ )]"), 0, 0));
    };
    QObject::connect(&window, &QFileDialog::filterSelected, &window, complete);
    complete(window.selectedNameFilter());
    if (!window.exec() || window.selectedFiles().isEmpty()) return {};
    const QString file = window.selectedFiles().front();
    QSettings().setValue(folder_key, QFileInfo(file).absolutePath());
    return to_path(file);
}

}  // namespace oxhost::desktop
