#pragma once
/// The scenes of a document for Qt's views: read when a cell is drawn.

#include <QAbstractTableModel>
#include <QTimer>
#include <unordered_map>
#include <vector>

#include "desktop/document.h"

namespace oxhost::desktop {

class scene_model final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum column { number, caption, profile, projection, code, vertices, length, column_count };
    static constexpr int sort_role = Qt::UserRole;  ///< a number or text that orders

    explicit scene_model(document& shown, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return column_count; }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    void name_texts();  ///< of the language of now

private:
    struct projection_words {
        QString name, code;
    };
    const projection_words& words_of(const std::string& proj4) const;
    void begin_again();
    void measure_more();  ///< lengths, while nothing else is to be done

    document& document_;
    mutable std::unordered_map<std::string, projection_words> words_;
    std::vector<double>
        lengths_;  ///< metres on the ellipsoid; negative where there is none; the first so many
    QTimer idle_;
};

}  // namespace oxhost::desktop
