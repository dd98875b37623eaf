#pragma once
/// The scenes as a table: filtered while one types, sorted by any column, selected together with the map.

#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QWidget>
#include <memory>

#include "desktop/scenes/scene_model.h"

namespace oxhost::desktop {

class scene_table final : public QWidget {
    Q_OBJECT
public:
    explicit scene_table(document& shown, QWidget* parent = nullptr);
    ~scene_table() override;

    QTableView& table() { return table_; }
    QLineEdit& filter() { return filter_; }

Q_SIGNALS:
    void activated(std::size_t scene);  ///< by a double click or Enter

protected:
    void changeEvent(QEvent* event) override;

private:
    void name_texts();
    void take_selection();
    void hand_on();
    void count();
    void offer_columns(const QPoint& place);
    void copy() const;
    std::size_t scene_of(const QModelIndex& shown) const;

    document& document_;
    scene_model model_;
    std::unique_ptr<QSortFilterProxyModel> order_;
    QSortFilterProxyModel& sorted_;
    QLineEdit filter_{this};
    QTableView table_{this};
    QLabel counts_{this};
    bool taking_ = false;
};

}  // namespace oxhost::desktop
