#pragma once
/// A bundle's outline for Qt's views. Cells are asked for when they are drawn; sorting permutes row numbers
/// and copies nothing else.

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "shell/table.h"

namespace oxhost::desktop {

class outline_model final : public QAbstractTableModel {
    Q_OBJECT
public:
    outline_model(shell::table_model& rows, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// By the column's own order; a negative column gives back the outline's.
    void sort(int column, Qt::SortOrder order) override;

    /// Rows of the outline, which sorting leaves alone.
    std::uint32_t row_at(const QModelIndex& index) const {
        return order_[static_cast<std::size_t>(index.row())];
    }
    QModelIndex index_of(std::uint32_t row) const;
    void read_again();
    /// Checks the rows, or takes the checks away if all of them have one.
    void toggle_checks(const QModelIndexList& rows);

private:
    void arrange();

    shell::table_model& rows_;
    std::vector<std::uint32_t> order_;  ///< outline row of each shown row
    std::vector<int> place_;            ///< the other way round
    int sorted_by_ = -1;
    Qt::SortOrder direction_ = Qt::AscendingOrder;
};

}  // namespace oxhost::desktop
