#pragma once
/// A bundle's outline as a table: columns, check boxes, rows that are selected, cells edited in place.

#include <QTreeView>

#include "desktop/elements/outline_model.h"
#include "shell/node.h"

namespace oxhost::desktop {

class table_view final : public QTreeView {
public:
    table_view(shell::node& table, QWidget* parent);
    QSize sizeHint() const override;  ///< two columns of names are readable

protected:
    /// Space checks all selected rows, or takes their checks away.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void take_selection();  ///< from the outline
    void hand_on(const QItemSelection& selected, const QItemSelection& deselected);

    shell::table_model& rows_;
    outline_model model_{rows_, this};
    bool taking_ = false;
};

}  // namespace oxhost::desktop
