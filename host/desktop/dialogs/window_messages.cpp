#include "desktop/dialogs/window_messages.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

#include "desktop/text.h"
#include "session/interruption.h"
#include "shell/host_strings.h"

namespace oxhost::desktop {

/// The person sees how far it is, and may end it after the scene in hand; nothing else can be done meanwhile.
class window_messages::progress final : public progress_display {
public:
    explicit progress(window_messages& all)
        : all_(all),
          window_(say("Выполняется…", "Working…"), say("Остановить", "Stop"), 0, 1000, all.user_.top()) {
        if (++all_.progress_ == 1) all_.stopped_ = false;
        window_.setWindowModality(Qt::ApplicationModal);
        window_.setMinimumDuration(300);
        window_.setAutoReset(false);
        window_.setAutoClose(false);
        QObject::connect(&window_, &QProgressDialog::canceled, &window_, [this] {
            all_.stopped_ = true;
            wish_ending(true);
        });
        since_.start();
    }
    ~progress() override {
        if (--all_.progress_ > 0) return;
        all_.work_ended_.start();
        if (!all_.stopped_) return;
        wish_ending(false);
        all_.note_down(message_kind::information,
                       words("остановлено: остальные сцены остались как были",
                             "stopped: the scenes that were left are as they were"));
    }
    void report(double fraction) override {
        if (since_.elapsed() < 40) return;  // else drawing would cost more than the work
        since_.restart();
        window_.setValue(static_cast<int>(fraction * 1000));
        // Input reaches this window only, once it is there; until then it waits.
        QApplication::processEvents(window_.isVisible() ? QEventLoop::AllEvents
                                                        : QEventLoop::ExcludeUserInputEvents);
    }

private:
    window_messages& all_;
    QProgressDialog window_;
    QElapsedTimer since_;
};

window_messages::window_messages(document& shown, const window_user& user) : document_(shown), user_(user) {
    work_ended_.setSingleShot(true);
    QObject::connect(&work_ended_, &QTimer::timeout, &work_ended_, [this] {
        if (progress_ > 0) return;
        last_.clear();
        stopped_ = false;
    });
}

void window_messages::note_down(message_kind kind, const std::string& text) {
    note told;
    told.kind = kind;
    told.text = to_qt(text);
    document_.say(told);
}

void window_messages::show(message_kind kind, const std::string& text) {
    if (stopped_) return;  // a verdict on scenes that were declined
    note_down(kind, text);
    if (text == last_) return;
    QMessageBox window(kind == message_kind::error ? QMessageBox::Critical : QMessageBox::Information,
                       user_.top()->windowTitle(), to_qt(text), QMessageBox::Ok, user_.top());
    window.setTextFormat(Qt::PlainText);
    window.exec();
    last_ = text;
    work_ended_.start();
}

std::optional<bool> window_messages::ask(const std::string& text) {
    QMessageBox window(QMessageBox::Question, user_.top()->windowTitle(), to_qt(text),
                       QMessageBox::Yes | QMessageBox::No, user_.top());
    window.setTextFormat(Qt::PlainText);
    window.button(QMessageBox::Yes)->setText(to_qt(shell::text_of(shell::host_string::yes)));
    window.button(QMessageBox::No)->setText(to_qt(shell::text_of(shell::host_string::no)));
    window.setDefaultButton(QMessageBox::No);
    window.setEscapeButton(QMessageBox::No);
    const bool yes = window.exec() == QMessageBox::Yes;
    note_down(message_kind::question, text + (yes ? words(" - да", " - yes") : words(" - нет", " - no")));
    return yes;
}

std::unique_ptr<progress_display> window_messages::open_progress() {
    return std::make_unique<progress>(*this);
}

}  // namespace oxhost::desktop
