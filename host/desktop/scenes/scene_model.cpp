#include "desktop/scenes/scene_model.h"

#include <QElapsedTimer>
#include <QLocale>

#include "desktop/text.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/measure.h"

namespace oxhost::desktop {

scene_model::scene_model(document& shown, QObject* parent) : QAbstractTableModel(parent), document_(shown) {
    connect(&document_, &document::reset, this, &scene_model::begin_again);
    connect(&idle_, &QTimer::timeout, this, &scene_model::measure_more);
    begin_again();
}

void scene_model::begin_again() {
    beginResetModel();
    lengths_.clear();
    endResetModel();
    idle_.start(0);
}

int scene_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || !document_.opened() ? 0 : static_cast<int>(document_.opened()->size());
}

/// Many scenes, few texts.
const scene_model::projection_words& scene_model::words_of(const std::string& proj4) const {
    const auto [found, missing] = words_.try_emplace(proj4);
    if (missing && proj4.empty())
        found->second.name = say("нет", "none");
    else if (missing)
        found->second = {to_qt(short_description(proj4, current_language())), to_qt(exact_code(proj4))};
    return found->second;
}

QVariant scene_model::data(const QModelIndex& index, int role) const {
    const scene* subject =
        document_.opened() ? document_.opened()->at(static_cast<std::size_t>(index.row())) : nullptr;
    if (!subject) return {};
    const auto row = static_cast<std::size_t>(index.row());
    if (role == Qt::TextAlignmentRole)
        return index.column() == number || index.column() >= vertices
                   ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                   : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && (index.column() == projection || index.column() == code))
        return to_qt(subject->proj4);
    if (role != Qt::DisplayRole && role != sort_role) return {};
    const bool shown = role == Qt::DisplayRole;
    switch (index.column()) {
        case number:
            return static_cast<qulonglong>(row);
        case caption:
            return to_qt(subject->caption);
        case profile:
            return subject->profile ? say("да", "yes") : say("нет", "no");
        case projection:
            return words_of(subject->proj4).name;
        case code:
            return words_of(subject->proj4).code;
        case vertices:
            return subject->line ? QVariant(static_cast<qulonglong>(subject->line->vertices)) : QVariant();
        case length: {
            const double metres = row < lengths_.size() ? lengths_[row] : -1;
            if (!shown) return metres;
            return metres < 0 ? QVariant()
                              : QLocale().toString(metres, 'f', metres < 1000 ? 2 : 0) + say(" м", " m");
        }
        default:
            return {};
    }
}

QVariant scene_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case number:
            return QString("#");
        case caption:
            return say("Сцена", "Scene");
        case profile:
            return say("Разрез", "Profile");
        case projection:
            return say("Проекция", "Projection");
        case code:
            return QString("EPSG");
        case vertices:
            return say("Вершин", "Vertices");
        case length:
            return say("Длина", "Length");
        default:
            return {};
    }
}

void scene_model::measure_more() {
    QElapsedTimer since;
    since.start();
    const std::size_t first = lengths_.size();
    project* opened = document_.changing() ? nullptr : document_.opened();
    while (opened && lengths_.size() < opened->size() && since.elapsed() < 8) {
        const scene& subject = *opened->at(lengths_.size());
        double metres = -1;
        try {
            if (subject.line && !subject.proj4.empty())
                metres = geodesic_length(opened->read_line(subject).xy, subject.proj4).value_or(-1);
        } catch (const std::exception&) {
            // a text that PROJ refuses, a line that cannot be read: there is no length to show
        }
        lengths_.push_back(metres);
    }
    if (lengths_.size() == first) return idle_.stop();
    Q_EMIT dataChanged(index(static_cast<int>(first), length),
                       index(static_cast<int>(lengths_.size()) - 1, length));
}

void scene_model::name_texts() {
    words_.clear();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, column_count - 1);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, column_count - 1));
}

}  // namespace oxhost::desktop
