#include "desktop/project/history_dialog.h"

#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <map>

#include "desktop/text.h"
#include "geodesy/description.h"

namespace oxhost::desktop {

namespace {

QDialogButtonBox* closing_buttons(QDialog& window) {
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(say("Закрыть", "Close"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    return buttons;
}

QString local_time(const std::string& utc) {
    const auto at = QDateTime::fromString(to_qt(utc), Qt::ISODate);
    return at.isValid() ? at.toLocalTime().toString("yyyy-MM-dd hh:mm:ss") : to_qt(utc);
}

void fill(QTableWidget& table, const std::vector<past_run>& runs) {
    table.setRowCount(static_cast<int>(runs.size()));
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const auto& goal = runs[i].goal;
        const QString target =
            goal.proj4.empty() ? to_qt(goal.given) : to_qt(short_description(goal.proj4, current_language()));
        const QString texts[] = {local_time(runs[i].started), target, QString::number(runs[i].scenes)};
        for (int column = 0; column < 3; ++column) {
            auto* cell = new QTableWidgetItem(texts[column]);
            cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            cell->setToolTip(to_qt(goal.given));
            table.setItem(static_cast<int>(i), column, cell);
        }
    }
    table.resizeColumnsToContents();
}

std::string report_of(project& opened) {
    std::map<std::string, std::size_t> projections;
    std::size_t vertices = 0, lines = 0, profiles = 0;
    for (const scene& each : opened.scenes()) {
        ++projections[each.proj4];
        profiles += each.profile;
        if (!each.line) continue;
        ++lines;
        vertices += each.line->vertices;
    }
    const auto figure = [](const std::string& name, std::size_t value) {
        return name + ": " + std::to_string(value) + '\n';
    };
    std::string told = figure(words("Сцен", "Scenes"), opened.scenes().size()) +
                       figure(words("из них разрезов", "of them profiles"), profiles) +
                       figure(words("Линий", "Lines"), lines) +
                       figure(words("Вершин", "Vertices"), vertices) +
                       figure(words("Проходов, которые можно отменить", "Runs that can be undone"),
                              opened.past_runs().size()) +
                       '\n' + words("Проекции:", "Projections:") + '\n';
    for (const auto& [proj4, count] : projections)
        told += "  " + std::to_string(count) + "  " +
                (proj4.empty() ? words("без проекции", "without projection")
                               : short_description(proj4, current_language())) +
                '\n';
    told += '\n' + words("Атрибуты:", "Attributes:");
    for (const field& each : opened.fields()) told += ' ' + each.name;
    return told;
}

}  // namespace

void show_history(document& shown, QWidget* over, const std::function<void()>& undo_newest) {
    QDialog window(over);
    window.setWindowTitle(say("История проходов", "History of runs"));
    auto* table = new QTableWidget(0, 3);
    table->setAccessibleName(say("Проходы, новые первыми", "Runs, newest first"));
    table->setHorizontalHeaderLabels({say("Начат", "Started"), say("Цель", "Target"), say("Сцен", "Scenes")});
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setTabKeyNavigation(false);
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    auto* buttons = closing_buttons(window);
    auto* back =
        buttons->addButton(say("Отменить последний…", "Undo the newest…"), QDialogButtonBox::ActionRole);
    back->setAutoDefault(false);
    const auto refresh = [&] {
        const auto runs = shown.opened() ? shown.opened()->past_runs() : std::vector<past_run>{};
        fill(*table, runs);
        back->setEnabled(!runs.empty());
    };
    QObject::connect(back, &QPushButton::clicked, &window, [&] {
        undo_newest();
        refresh();
    });
    auto* column = new QVBoxLayout(&window);
    column->addWidget(table, 1);
    column->addWidget(buttons);
    refresh();
    window.resize(window.fontMetrics().averageCharWidth() * 80, window.fontMetrics().height() * 20);
    window.exec();
}

void show_properties(document& shown, QWidget* over) {
    QDialog window(over);
    window.setWindowTitle(say("Свойства проекта", "Project properties"));
    const QFileInfo file(name_of_file(shown.file()));
    auto* text = new QPlainTextEdit(
        file.absoluteFilePath() + '\n' + QLocale().formattedDataSize(file.size()) + ", " +
        file.lastModified().toString("yyyy-MM-dd hh:mm:ss") + "\n\n" + to_qt(report_of(*shown.opened())));
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setAccessibleName(window.windowTitle());
    auto* column = new QVBoxLayout(&window);
    column->addWidget(text, 1);
    column->addWidget(closing_buttons(window));
    window.resize(window.fontMetrics().averageCharWidth() * 80, window.fontMetrics().height() * 24);
    window.exec();
}

}  // namespace oxhost::desktop
