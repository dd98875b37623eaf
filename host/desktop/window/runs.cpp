// Runs of utilities from the main window: what they changed is shown, and taken back on demand.

#include <QPushButton>
#include <algorithm>

#include "desktop/text.h"
#include "desktop/window/main_window.h"
#include "geodesy/measure.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/selection.h"
#include "session/messages.h"

namespace oxhost::desktop {

using oxhost::run::outcome;

/// The project keeps what every run has changed; undoing is asked for, since it changes data too.
void main_window::undo() {
    const auto runs = document_.opened() ? document_.opened()->past_runs() : std::vector<past_run>{};
    if (runs.empty())
        throw project_error(words("нет прохода, который можно отменить", "there is no run to take back"));
    const QString question = say("Вернуть сцены в состояние до прохода %1 (%2)?",
                                 "Put the scenes back to what they were before the run of %1 (%2)?")
                                 .arg(to_qt(runs.front().started), to_qt(runs.front().goal.given));
    if (!messages::instance().ask(question.toStdString())) return;
    document_.change([&](project& opened) {
        const auto back = opened.undo(later_changes::respected);
        if (!back) return;
        note told;
        told.text = say("Возвращено сцен: %1", "Scenes put back: %1").arg(back->taken_back);
        document_.say(told);
        for (const std::string& each : back->changed_since) {
            note left;
            left.kind = message_kind::error;
            left.text =
                to_qt(each) + say(": изменена позже, оставлена как есть", ": changed since, left alone");
            document_.say(left);
        }
    });
    map_->show_before({});
    notices_->hide();
}

void main_window::run(std::size_t utility) {
    map_->show_before({});
    kept_.clear();
    if (project* opened = document_.opened())
        for (const scene& each : opened->scenes())
            kept_.emplace_back(each.proj4, each.line ? opened->read_line(each).xy : polyline());
    utilities_->run(utility);
}

void main_window::guess() {
    if (!document_.opened()) throw project_error(words("проект не открыт", "no project is open"));
    std::optional<std::size_t> first;
    if (!document_.selected().empty()) first = document_.selected().front();
    const auto show = [this](const polyline& line) { map_->show_candidate(line); };
    while (const auto chosen = guess_projection(document_, first, show, this)) {
        assign(*chosen);
        const auto scenes = oxhost::run::listed_scenes(*document_.opened());
        const auto lacking = [](const scene* each) { return each->proj4.empty() && each->line; };
        if (!document_.opened()->at(chosen->scene)->proj4.empty() && std::ranges::none_of(scenes, lacking))
            return;
        first = chosen->scene;
    }
}

void main_window::assign(const guessed& chosen) {
    to_assign_ = chosen;
    run(utilities_->place_of(oxhost::run::plug_in_text::utility));
    to_assign_.reset();
}

/// The projection goes the way of a person's: through the dialog's own Load button, check boxes and Apply.
void main_window::prepare(shell::open_dialog& dialog, QDialogButtonBox& buttons) {
    if (!to_assign_ || dialog.id() != oxhost::run::plug_in_text::utility) return;
    const guessed chosen = *std::exchange(to_assign_, std::nullopt);
    actions_.attempt([&] {
        oxhost::run::prepare(dialog, *document_.opened(), {chosen.scene}, chosen.proj4,
                             [this](const std::filesystem::path& file) { user_.answer_file(file); });
        for (QAbstractButton* each : buttons.buttons())
            if (auto* apply = qobject_cast<QPushButton*>(each); apply && apply->isDefault())
                QMetaObject::invokeMethod(apply, &QPushButton::click, Qt::QueuedConnection);
    });
}

/// The lines of changed scenes as they were, where they were; and the way back, one press away.
void main_window::show_changes(const std::vector<oxhost::run::scene_result>& results) {
    placed_lines before;
    for (const auto& each : results) {
        if (each.came_to != outcome::reprojected || each.subject->index >= kept_.size()) continue;
        const auto& [proj4, line] = kept_[each.subject->index];
        if (auto degrees = to_wgs84(line, proj4))
            before.emplace_back(each.subject->index, std::move(*degrees));
    }
    if (count(results, outcome::reprojected) + count(results, outcome::assigned) +
            count(results, outcome::reset) ==
        0)
        return;
    map_->show_before(std::move(before));
    notices_->offer(to_qt(summary(results)), say("Отменить", "Undo"),
                    [this] { actions_.attempt([this] { undo(); }); });
}

}  // namespace oxhost::desktop
