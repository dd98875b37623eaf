#include "desktop/decide/preview_table.h"

#include <QEvent>
#include <QHeaderView>
#include <QLocale>
#include <cmath>

#include "desktop/text.h"
#include "map/listing.h"

namespace oxhost::desktop {

namespace {

using oxhost::run::foreseen_scene;
using oxhost::run::outcome;

constexpr int order_role = Qt::UserRole, place_role = Qt::UserRole + 1;

/// Sorts by a number where it has one: those that have none come last.
class cell final : public QTableWidgetItem {
public:
    cell(const QString& text, QVariant order) : QTableWidgetItem(text) {
        setData(order_role, std::move(order));
        setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        setToolTip(text);
    }
    bool operator<(const QTableWidgetItem& other) const override {
        const QVariant mine = data(order_role), its = other.data(order_role);
        if (mine.isValid() && its.isValid()) return mine.toDouble() < its.toDouble();
        return mine.isValid() != its.isValid() ? mine.isValid() : text().localeAwareCompare(other.text()) < 0;
    }
};

cell* text_cell(const QString& text) { return new cell(text, {}); }

cell* number_cell(const std::optional<double>& value, int decimals, const QString& behind = {}) {
    auto* made = value ? new cell(QLocale::c().toString(*value, 'f', decimals) + behind, *value)
                       : new cell(QStringLiteral("—"), {});
    made->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return made;
}

QString outcome_text(const foreseen_scene& scene, bool will_ask) {
    const QString asks = will_ask ? say(" (с вопросом)", " (will ask)") : QString();
    switch (scene.comes_to) {
        case outcome::reprojected:
            return say("перепроецирование", "reproject");
        case outcome::assigned:
            return say("назначение проекции", "assign") + asks;
        case outcome::reset:
            return say("сброс проекции", "reset") + asks;
        case outcome::unchanged:
            return say("без изменений", "unchanged");
        case outcome::failed:
            return say("отказ", "refused");
        case outcome::not_attempted:
            break;
    }
    return say("не обработана", "not attempted");
}

/// Failures first, then what moves, then what stays.
int urgency(outcome comes_to) {
    return comes_to == outcome::failed          ? 0
           : comes_to == outcome::not_attempted ? 1
                                                : 2 + static_cast<int>(comes_to);
}

QString remarks(const foreseen_scene& scene) {
    QStringList all;
    if (const auto& failure = scene.failure)
        all << (failure->vertex ? say("вершина %1: ", "vertex %1: ").arg(failure->vertex->vertex)
                                : QString()) +
                   to_qt(failure->reason);
    for (const std::string& each : scene.warnings) all << to_qt(each);
    return all.join("; ");
}

}  // namespace

preview_table::preview_table(const oxhost::run::foreseen& told, QWidget* parent)
    : QTableWidget(static_cast<int>(told.scenes.size()), 9, parent), told_(told) {
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + 6);
    horizontalHeader()->setStretchLastSection(true);
    name_texts();
    sortByColumn(2, Qt::AscendingOrder);
    setSortingEnabled(true);
    resizeColumnsToContents();
}

std::vector<std::size_t> preview_table::selected() const {
    std::vector<std::size_t> places;
    const auto rows = selectionModel()->selectedRows(0);
    for (const QModelIndex& each : rows) places.push_back(each.data(place_role).toULongLong());
    return places;
}

void preview_table::name_texts() {
    setAccessibleName(say("Что станет со сценами", "What becomes of the scenes"));
    setHorizontalHeaderLabels({say("№", "No."), say("Сцена", "Scene"), say("Итог", "Outcome"),
                               say("Сдвиг", "Shift"), say("Длина до, м", "Length before, m"),
                               say("Длина после, м", "Length after, m"),
                               say("Ошибка масштаба, %", "Scale error, %"), say("Точность, м", "Accuracy, m"),
                               say("Предупреждения", "Warnings")});
    fill();
}

void preview_table::fill() {
    const bool sorted = isSortingEnabled();
    setSortingEnabled(false);
    for (std::size_t i = 0; i < told_.scenes.size(); ++i) {
        const foreseen_scene& scene = told_.scenes[i];
        const int row = static_cast<int>(i);
        auto* number = number_cell(static_cast<double>(scene.index), 0);
        number->setData(place_role, static_cast<qulonglong>(i));
        setItem(row, 0, number);
        setItem(row, 1, text_cell(to_qt(scene.caption)));
        setItem(row, 2, new cell(outcome_text(scene, told_.will_ask), urgency(scene.comes_to)));
        const auto& way = scene.way;
        const bool moved = way && way->metres >= 0.05;
        setItem(row, 3,
                number_cell(way ? std::optional(way->metres) : std::nullopt, 1,
                            say(" м", " m") +
                                (moved ? ' ' + to_qt(map::direction_words(way->azimuth, current_language()))
                                       : QString())));
        const auto& judged = scene.judged;
        setItem(row, 4, number_cell(judged.length_before, 1));
        setItem(row, 5, number_cell(judged.length_after, 1));
        setItem(row, 6, number_cell(judged.scale_error_percent, 3));
        setItem(row, 7, number_cell(judged.operation ? judged.operation->accuracy : std::nullopt, 2));
        setItem(row, 8, text_cell(remarks(scene)));
    }
    setSortingEnabled(sorted);
}

void preview_table::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    QTableWidget::changeEvent(event);
}

}  // namespace oxhost::desktop
