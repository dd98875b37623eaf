#include "desktop/elements/table_view.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace oxhost::desktop {

table_view::table_view(shell::node& table, QWidget* parent) : QTreeView(parent), rows_(*table.rows()) {
    setModel(&model_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | SelectedClicked);
    setMinimumSize(fontMetrics().averageCharWidth() * 60, fontMetrics().lineSpacing() * 8);
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(true);
    for (int i = 0; i < model_.columnCount(); ++i)
        if (rows_.columns()[static_cast<std::size_t>(i)].pictures)
            header()->setSectionResizeMode(i, QHeaderView::ResizeToContents);
    header()->resizeSection(0, fontMetrics().averageCharWidth() * 42);
    setSortingEnabled(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);  // as the bundle lists them

    rows_.on_refresh = [this] {
        model_.read_again();
        take_selection();
    };
    rows_.on_selection_changed = [this] { take_selection(); };
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &table_view::hand_on);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& now) {
        if (!taking_ && now.isValid()) rows_.make_current(model_.row_at(now));
    });
    take_selection();
}

QSize table_view::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 96, fontMetrics().lineSpacing() * 16};
}

void table_view::take_selection() {
    if (taking_) return;
    taking_ = true;
    QItemSelection selected;
    for (int i = 0; i < model_.rowCount(); ++i) {
        const QModelIndex row = model_.index(i, 0);
        if (rows_.selected(model_.row_at(row))) selected.append({row, row});
    }
    selectionModel()->select(selected, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (const auto current = rows_.current())
        selectionModel()->setCurrentIndex(model_.index_of(*current), QItemSelectionModel::NoUpdate);
    taking_ = false;
}

void table_view::hand_on(const QItemSelection& selected, const QItemSelection& deselected) {
    if (taking_) return;
    taking_ = true;
    const auto tell = [&](const QItemSelection& ranges, bool now) {
        for (const QItemSelectionRange& range : ranges)
            for (int row = range.top(); row <= range.bottom(); ++row)
                rows_.select(model_.row_at(model_.index(row, 0)), now);
    };
    tell(deselected, false);
    tell(selected, true);
    taking_ = false;
}

void table_view::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && state() != EditingState)
        return model_.toggle_checks(selectionModel()->selectedRows());
    QTreeView::keyPressEvent(event);
}

}  // namespace oxhost::desktop
