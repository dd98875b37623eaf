#include "desktop/project/cancellable_bar.h"

#include <QApplication>
#include <QEventLoop>

#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

constexpr int steps = 1000;
constexpr int delay = 300;   // ms: what is done sooner needs no window
constexpr int between = 40;  // ms: else drawing would cost more than the work

}  // namespace

cancellable_bar::cancellable_bar(QWidget* over) : window_(QString(), say("Отмена", "Cancel"), 0, 0, over) {
    window_.setWindowModality(Qt::ApplicationModal);
    window_.setMinimumDuration(delay);
    window_.setAutoReset(false);
    window_.setAutoClose(false);
    window_.setMinimumWidth(window_.fontMetrics().averageCharWidth() * 60);
    since_.start();
}

void cancellable_bar::tell(const QString& text, double share) {
    if (since_.elapsed() < between) return;
    since_.restart();
    window_.setLabelText(text);
    if (share >= 0) window_.setMaximum(steps);
    window_.setValue(share < 0 ? 0 : static_cast<int>(share * steps));
    // Input reaches this window only, once it is there; until then it waits.
    QApplication::processEvents(window_.isVisible() ? QEventLoop::AllEvents
                                                    : QEventLoop::ExcludeUserInputEvents);
    if (window_.wasCanceled()) throw cancelled{};
}

}  // namespace oxhost::desktop
