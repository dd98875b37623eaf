#pragma once
/// The lines of a preview where they are and where they would be. [ui]

#include <QWidget>

#include "run/preview.h"

namespace oxhost::desktop {

class preview_map final : public QWidget {
public:
    /// `told` outlives it.
    explicit preview_map(const oxhost::run::foreseen& told, QWidget* parent = nullptr);

    void emphasise(std::vector<std::size_t> places);  ///< of `told.scenes`; the map is drawn around them
    QSize sizeHint() const override { return {320, 260}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void name_texts();
    const oxhost::run::foreseen& told_;
    std::vector<std::size_t> chosen_;
};

}  // namespace oxhost::desktop
