// Runs of utilities from the main window: what they changed is shown, and taken back on demand.

#include "desktop/text.h"
#include "desktop/window/main_window.h"
#include "geodesy/measure.h"
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
