#pragma once
/// The scenes of a preview as a table. [ui]

#include <QTableWidget>

#include "run/preview.h"

namespace oxhost::desktop {

class preview_table final : public QTableWidget {
public:
    /// `told` outlives it.
    explicit preview_table(const oxhost::run::foreseen& told, QWidget* parent = nullptr);

    /// Places in `told.scenes`.
    std::vector<std::size_t> selected() const;

private:
    void name_texts();
    void fill();
    void changeEvent(QEvent* event) override;

    const oxhost::run::foreseen& told_;
};

}  // namespace oxhost::desktop
