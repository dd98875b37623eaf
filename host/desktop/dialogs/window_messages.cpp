#include "desktop/dialogs/window_messages.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QProgressDialog>

#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

/// Nothing here can be cancelled; the person sees how far it is and can do nothing else meanwhile.
class window_progress final : public progress_display {
public:
    explicit window_progress(QWidget* over)
        : window_(say("Выполняется…", "Working…"), QString(), 0, 1000, over) {
        window_.setWindowModality(Qt::WindowModal);
        window_.setMinimumDuration(300);
        window_.setAutoReset(false);
        since_.start();
    }
    void report(double fraction) override {
        if (since_.elapsed() < 40) return;  // else drawing would cost more than the work
        since_.restart();
        window_.setValue(static_cast<int>(fraction * 1000));
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

private:
    QProgressDialog window_;
    QElapsedTimer since_;
};

}  // namespace

void window_messages::note_down(message_kind kind, const std::string& text) {
    note told;
    told.kind = kind;
    told.text = to_qt(text);
    document_.say(told);
}

void window_messages::show(message_kind kind, const std::string& text) {
    note_down(kind, text);
    QMessageBox window(kind == message_kind::error ? QMessageBox::Critical : QMessageBox::Information,
                       user_.top()->windowTitle(), to_qt(text), QMessageBox::Ok, user_.top());
    window.setTextFormat(Qt::PlainText);
    window.exec();
}

std::optional<bool> window_messages::ask(const std::string& text) {
    QMessageBox window(QMessageBox::Question, user_.top()->windowTitle(), to_qt(text),
                       QMessageBox::Yes | QMessageBox::No, user_.top());
    window.setTextFormat(Qt::PlainText);
    window.setDefaultButton(QMessageBox::No);
    window.setEscapeButton(QMessageBox::No);
    const bool yes = window.exec() == QMessageBox::Yes;
    note_down(message_kind::question, text + (yes ? words(" - да", " - yes") : words(" - нет", " - no")));
    return yes;
}

std::unique_ptr<progress_display> window_messages::open_progress() {
    return std::make_unique<window_progress>(user_.top());
}

}  // namespace oxhost::desktop
