#include "desktop/scenes/scene_table.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCollator>
#include <QEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

constexpr auto columns_key = "scenes/columns";

/// Texts as people order them: "Line 2" before "Line 10".
class scene_order final : public QSortFilterProxyModel {
public:
    scene_order() { natural_.setNumericMode(true); }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        const QVariant a = left.data(scene_model::sort_role), b = right.data(scene_model::sort_role);
        if (a.typeId() == QMetaType::QString) return natural_.compare(a.toString(), b.toString()) < 0;
        return a.toDouble() < b.toDouble();
    }

private:
    // The locale "C" orders by bytes alone.
    QCollator natural_{
        QLocale(current_language() == language::russian ? QLocale::Russian : QLocale::English)};
};

}  // namespace

scene_table::scene_table(document& shown, QWidget* parent)
    : QWidget(parent),
      document_(shown),
      model_(shown),
      order_(std::make_unique<scene_order>()),
      sorted_(*order_) {
    sorted_.setSourceModel(&model_);
    sorted_.setFilterKeyColumn(-1);
    sorted_.setFilterCaseSensitivity(Qt::CaseInsensitive);
    sorted_.setSortRole(scene_model::sort_role);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 0, 0);
    column->addWidget(&filter_);
    column->addWidget(&table_, 1);
    column->addWidget(&counts_);
    filter_.setClearButtonEnabled(true);
    table_.setModel(&sorted_);
    table_.setSelectionBehavior(QTableView::SelectRows);
    table_.setSelectionMode(QTableView::ExtendedSelection);
    table_.setSortingEnabled(true);
    table_.sortByColumn(scene_model::number, Qt::AscendingOrder);
    table_.setWordWrap(false);
    table_.setTabKeyNavigation(false);
    table_.verticalHeader()->hide();
    table_.verticalHeader()->setDefaultSectionSize(table_.fontMetrics().height() + 6);
    table_.horizontalHeader()->setSectionsMovable(true);
    table_.horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    const int letter = table_.fontMetrics().averageCharWidth();
    for (const auto& [which, letters] : {std::pair{scene_model::number, 6},
                                         {scene_model::caption, 26},
                                         {scene_model::profile, 8},
                                         {scene_model::projection, 38},
                                         {scene_model::code, 12},
                                         {scene_model::vertices, 9},
                                         {scene_model::length, 12}})
        table_.setColumnWidth(which, letter * letters);
    table_.horizontalHeader()->restoreState(QSettings().value(columns_key).toByteArray());

    connect(&filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        sorted_.setFilterFixedString(text);
        take_selection();
        count();
    });
    connect(table_.horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
            &scene_table::offer_columns);
    connect(table_.selectionModel(), &QItemSelectionModel::selectionChanged, this, &scene_table::hand_on);
    connect(&document_, &document::selection_changed, this, [this] {
        take_selection();
        count();
    });
    connect(&table_, &QTableView::activated, this,
            [this](const QModelIndex& at) { Q_EMIT activated(scene_of(at)); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
            [this] { filter_.setFocus(); });
    connect(new QShortcut(QKeySequence::Copy, &table_, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, this, &scene_table::copy);
    auto* clear = new QShortcut(Qt::Key_Escape, &filter_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(clear, &QShortcut::activated, &filter_, &QLineEdit::clear);
    name_texts();
    take_selection();
}

scene_table::~scene_table() { QSettings().setValue(columns_key, table_.horizontalHeader()->saveState()); }

std::size_t scene_table::scene_of(const QModelIndex& shown) const {
    return static_cast<std::size_t>(sorted_.mapToSource(shown).row());
}

void scene_table::take_selection() {
    if (taking_) return;
    taking_ = true;
    QItemSelection selected;
    for (const std::size_t each : document_.selected()) {
        const QModelIndex row = sorted_.mapFromSource(model_.index(static_cast<int>(each), 0));
        if (row.isValid()) selected.append({row, row});
    }
    table_.selectionModel()->select(selected,
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (!selected.isEmpty()) table_.scrollTo(selected.front().topLeft());
    taking_ = false;
}

void scene_table::hand_on() {
    if (taking_) return;
    taking_ = true;
    std::vector<std::size_t> scenes;
    for (const QModelIndex& each : table_.selectionModel()->selectedRows()) scenes.push_back(scene_of(each));
    document_.select(std::move(scenes));
    taking_ = false;
    count();
}

void scene_table::count() {
    counts_.setText(say("Показано %1 из %2, выбрано %3", "%1 of %2 shown, %3 selected")
                        .arg(sorted_.rowCount())
                        .arg(model_.rowCount())
                        .arg(document_.selected().size()));
}

void scene_table::offer_columns(const QPoint& place) {
    QMenu menu(this);
    for (int i = scene_model::caption; i < scene_model::column_count; ++i) {
        QAction* shown = menu.addAction(model_.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString());
        shown->setCheckable(true);
        shown->setChecked(!table_.isColumnHidden(i));
        connect(shown, &QAction::toggled, &table_, [this, i](bool now) { table_.setColumnHidden(i, !now); });
    }
    menu.exec(table_.horizontalHeader()->mapToGlobal(place));
}

/// As a spreadsheet takes it: cells parted by tabs, in the order of the screen.
void scene_table::copy() const {
    QStringList lines;
    QModelIndexList rows = table_.selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int visual = 0; visual < scene_model::column_count; ++visual) {
            const int column = table_.horizontalHeader()->logicalIndex(visual);
            if (!table_.isColumnHidden(column)) cells << row.siblingAtColumn(column).data().toString();
        }
        lines << cells.join('\t');
    }
    QApplication::clipboard()->setText(lines.join('\n'));
}

void scene_table::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    QWidget::changeEvent(event);
}

void scene_table::name_texts() {
    filter_.setPlaceholderText(
        say("Искать по названию, проекции, коду", "Find by caption, projection, code"));
    filter_.setAccessibleName(say("Отбор сцен", "Filter of scenes"));
    table_.setAccessibleName(say("Сцены", "Scenes"));
    model_.name_texts();
    count();
}

}  // namespace oxhost::desktop
