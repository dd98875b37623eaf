#include "desktop/elements/outline_model.h"

#include <QFont>
#include <algorithm>
#include <numeric>

#include "desktop/elements/draw.h"
#include "desktop/text.h"

namespace oxhost::desktop {

outline_model::outline_model(shell::table_model& rows, QObject* parent)
    : QAbstractTableModel(parent), rows_(rows) {
    arrange();
}

/// The rows in the order that is wanted.
void outline_model::arrange() {
    order_.resize(rows_.row_count());
    std::iota(order_.begin(), order_.end(), 0u);
    if (sorted_by_ >= 0) {
        const auto column = static_cast<std::size_t>(sorted_by_);
        std::ranges::stable_sort(order_, [&](std::uint32_t a, std::uint32_t b) {
            return direction_ == Qt::AscendingOrder ? rows_.sorts_after(b, a, column)
                                                    : rows_.sorts_after(a, b, column);
        });
    }
    place_.resize(order_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) place_[order_[i]] = static_cast<int>(i);
}

void outline_model::read_again() {
    if (rows_.row_count() == order_.size()) {
        if (!order_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        return;
    }
    beginResetModel();
    arrange();
    endResetModel();
}

void outline_model::sort(int column, Qt::SortOrder order) {
    sorted_by_ = column;
    direction_ = order;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> kept;
    for (const QModelIndex& each : before) kept.push_back(row_at(each));
    arrange();
    for (qsizetype i = 0; i < before.size(); ++i)
        changePersistentIndex(before[i],
                              index(place_[kept[static_cast<std::size_t>(i)]], before[i].column()));
    Q_EMIT layoutChanged();
}

QModelIndex outline_model::index_of(std::uint32_t row) const {
    return row < place_.size() ? index(place_[row], 0) : QModelIndex();
}

int outline_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int outline_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.columns().size());
}

QVariant outline_model::data(const QModelIndex& index, int role) const {
    const std::uint32_t row = row_at(index);
    const auto column = static_cast<std::size_t>(index.column());
    const bool pictures = rows_.columns()[column].pictures;
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return pictures ? QVariant() : to_qt(rows_.text(row, column));
        case Qt::ToolTipRole:
            return to_qt(rows_.hint(row, column));
        case Qt::DecorationRole:
            return pictures ? icon_of(rows_.image(row, column)) : QVariant();
        case Qt::FontRole:
            if (rows_.highlighted(row, column)) {
                QFont strong;
                strong.setBold(true);
                return strong;
            }
            return {};
        case Qt::CheckStateRole:
            if (column != 0 || !rows_.has_checks()) return {};
            return rows_.checked(row) ? Qt::Checked : Qt::Unchecked;
        default:
            return {};
    }
}

bool outline_model::setData(const QModelIndex& index, const QVariant& value, int role) {
    const std::uint32_t row = row_at(index);
    if (role == Qt::CheckStateRole)
        rows_.check(row, value.toInt() == Qt::Checked);
    else if (role == Qt::EditRole)
        rows_.edit(row, static_cast<std::size_t>(index.column()), value.toString().toStdString());
    else
        return false;
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    return true;
}

void outline_model::toggle_checks(const QModelIndexList& rows) {
    if (!rows_.has_checks() || rows.isEmpty()) return;
    const bool all =
        std::ranges::all_of(rows, [&](const QModelIndex& each) { return rows_.checked(row_at(each)); });
    for (const QModelIndex& each : rows) rows_.check(row_at(each), !all);
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QVariant outline_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return to_qt(rows_.columns()[static_cast<std::size_t>(section)].caption);
}

Qt::ItemFlags outline_model::flags(const QModelIndex& index) const {
    Qt::ItemFlags all = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const auto column = static_cast<std::size_t>(index.column());
    if (column == 0 && rows_.has_checks()) all |= Qt::ItemIsUserCheckable;
    if (!rows_.columns()[column].pictures && rows_.editable(row_at(index), column)) all |= Qt::ItemIsEditable;
    return all;
}

}  // namespace oxhost::desktop
