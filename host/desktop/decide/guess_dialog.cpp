#include "desktop/decide/guess_dialog.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/text.h"
#include "geodesy/measure.h"
#include "run/guess_hints.h"
#include "run/selection.h"

namespace oxhost::desktop {

namespace {

constexpr std::size_t most_candidates = 20;

QString degrees(double value, const QString& positive, const QString& negative) {
    return QString::number(std::abs(value), 'f', 4) + "° " + (value < 0 ? negative : positive);
}

class guess_dialog final : public QDialog {
public:
    guess_dialog(project& opened, const std::vector<scene*>& lines, const scene* first,
                 const std::function<void(const polyline&)>& show, QWidget* over)
        : QDialog(over),
          opened_(opened),
          lines_(lines),
          hints_(oxhost::run::hints_of(opened, lines)),
          show_(show) {
        setWindowTitle(say("Подбор проекции", "Guess the projection"));
        auto* label = new QLabel(say("&Линия без проекции:", "&Line without projection:"));
        label->setBuddy(&scene_);
        scene_.setAccessibleName(say("Линия без проекции", "Line without projection"));
        for (const scene* each : lines)
            scene_.addItem(QString("%1  ").arg(each->index) + to_qt(each->caption));
        list_.setAccessibleName(say("Системы, лучшие первыми", "Systems, best first"));
        list_.setHeaderLabels({say("Код", "Code"), say("Название", "Name"), say("Место", "Place"),
                               say("Область применения", "Area of use")});
        list_.setRootIsDecorated(false);
        list_.setUniformRowHeights(true);
        auto* buttons = new QDialogButtonBox;
        assign_ = buttons->addButton(say("&Назначить", "&Assign"), QDialogButtonBox::AcceptRole);
        buttons->addButton(say("Закрыть", "Close"), QDialogButtonBox::RejectRole);
        auto* column = new QVBoxLayout(this);
        column->addWidget(label);
        column->addWidget(&scene_);
        column->addWidget(&list_, 1);
        column->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(&scene_, &QComboBox::currentIndexChanged, this, [this] { guess(); });
        connect(&list_, &QTreeWidget::currentItemChanged, this, [this] { show_current(); });
        const auto place = std::ranges::find(lines, first);
        scene_.setCurrentIndex(place == lines.end() ? 0 : static_cast<int>(place - lines.begin()));
        guess();
        list_.setFocus();
        resize(fontMetrics().averageCharWidth() * 120, fontMetrics().height() * 24);
    }
    ~guess_dialog() override { show_({}); }

    guessed choice() const { return {subject().index, candidates_[place()].proj4}; }

private:
    const scene& subject() const { return *lines_[static_cast<std::size_t>(scene_.currentIndex())]; }
    std::size_t place() const {
        return static_cast<std::size_t>(list_.indexOfTopLevelItem(list_.currentItem()));
    }

    void guess() {
        line_ = opened_.read_line(subject()).xy;
        candidates_ = guess_systems(line_, hints_, most_candidates);
        list_.clear();
        for (const system_guess& each : candidates_) {
            auto* row = new QTreeWidgetItem(&list_);
            row->setText(0, to_qt(each.code));
            row->setText(
                1, to_qt(each.name) + (each.deprecated ? say("  (устарела)", "  (deprecated)") : QString()));
            row->setText(2, degrees(each.place.y, say("с. ш.", "N"), say("ю. ш.", "S")) + ", " +
                                degrees(each.place.x, say("в. д.", "E"), say("з. д.", "W")));
            row->setText(3, to_qt(each.area));
            row->setToolTip(3, to_qt(each.area));
        }
        for (int column = 0; column < 3; ++column) list_.resizeColumnToContents(column);
        assign_->setEnabled(!candidates_.empty());
        if (candidates_.empty()) {
            auto* none = new QTreeWidgetItem(&list_);
            none->setText(1, say("ни в одной системе линия не попадает в область её применения",
                                 "in no system does the line fall into its area of use"));
            none->setFlags(Qt::NoItemFlags);
        } else {
            list_.setCurrentItem(list_.topLevelItem(0));
        }
        show_current();
    }

    void show_current() {
        const bool any = list_.currentItem() && place() < candidates_.size();
        const auto there = any ? to_wgs84(line_, candidates_[place()].proj4) : std::nullopt;
        show_(there.value_or(polyline()));
    }

    project& opened_;
    const std::vector<scene*>& lines_;
    guess_hints hints_;
    const std::function<void(const polyline&)>& show_;
    polyline line_;  ///< of the scene in hand
    std::vector<system_guess> candidates_;
    QComboBox scene_;
    QTreeWidget list_;
    QPushButton* assign_ = nullptr;
};

}  // namespace

std::optional<guessed> guess_projection(document& shown, std::optional<std::size_t> scene,
                                        const std::function<void(const polyline&)>& show, QWidget* over) {
    project& opened = *shown.opened();
    std::vector<oxhost::scene*> lines;
    for (oxhost::scene* each : oxhost::run::listed_scenes(opened))
        if (each->proj4.empty() && each->line && each->line->vertices > 0) lines.push_back(each);
    if (lines.empty()) throw project_error(words("нет линий без проекции", "no line is without projection"));
    guess_dialog window(opened, lines, scene ? opened.at(*scene) : nullptr, show, over);
    if (!window.exec()) return {};
    return window.choice();
}

}  // namespace oxhost::desktop
