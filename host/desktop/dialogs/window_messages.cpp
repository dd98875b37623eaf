#include "desktop/dialogs/window_messages.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

#include "desktop/text.h"
#include "shell/host_strings.h"

namespace oxhost::desktop {

/// Nothing here can be cancelled; the person sees how far it is and can do nothing else meanwhile.
class window_messages::progress final : public progress_display {
public:
    explicit progress(window_messages& all)
        : all_(all), window_(say("Выполняется…", "Working…"), QString(), 0, 1000, all.user_.top()) {
        ++all_.progress_;
        window_.setWindowModality(Qt::WindowModal);
        window_.setMinimumDuration(300);
        window_.setAutoReset(false);
        since_.start();
    }
    ~progress() override {
        if (--all_.progress_ == 0) all_.work_ended_.start();
    }
    void report(double fraction) override {
        if (since_.elapsed() < 40) return;  // else drawing would cost more than the work
        since_.restart();
        window_.setValue(static_cast<int>(fraction * 1000));
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }

private:
    window_messages& all_;
    QProgressDialog window_;
    QElapsedTimer since_;
};

window_messages::window_messages(document& shown, const window_user& user) : document_(shown), user_(user) {
    work_ended_.setSingleShot(true);
    QObject::connect(&work_ended_, &QTimer::timeout, &work_ended_, [this] {
        if (progress_ == 0) last_.clear();
    });
}

void window_messages::note_down(message_kind kind, const std::string& text) {
    note told;
    told.kind = kind;
    told.text = to_qt(text);
    document_.say(told);
}

void window_messages::show(message_kind kind, const std::string& text) {
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
