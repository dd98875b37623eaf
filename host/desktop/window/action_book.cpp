#include "desktop/window/action_book.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>

#include "desktop/text.h"

namespace oxhost::desktop {

QAction* action_book::named(QAction* made, bilingual caption) {
    texts_.emplace_back(made, caption);
    made->setText(to_qt(std::string(caption)));
    return made;
}

QMenu* action_book::menu(QMenu* parent, bilingual caption) {
    QMenu* made = parent ? parent->addMenu(QString())
                         : static_cast<QMainWindow*>(window_)->menuBar()->addMenu(QString());
    made->setToolTipsVisible(true);
    named(made->menuAction(), caption);
    return made;
}

QAction* action_book::action(QMenu* parent, bilingual caption, const QKeySequence& keys,
                             std::function<void()> act) {
    QAction* made = named(parent->addAction(QString()), caption);
    made->setShortcut(keys);
    connect(made, &QAction::triggered, this, [this, act = std::move(act)] { attempt(act); });
    return made;
}

QAction* action_book::choice(QMenu* parent, bilingual caption, std::function<void(bool)> act) {
    QAction* made = named(parent->addAction(QString()), caption);
    made->setCheckable(true);
    connect(made, &QAction::triggered, this,
            [this, act = std::move(act)](bool now) { attempt([&] { act(now); }); });
    return made;
}

void action_book::attempt(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::exception& failure) {
        note told;
        told.kind = message_kind::error;
        told.text = to_qt(std::string_view(failure.what()));
        document_.say(told);
        QMessageBox box(QMessageBox::Critical, window_->windowTitle(), told.text, QMessageBox::Ok, window_);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
}

void action_book::name_texts() {
    for (const auto& [action, caption] : texts_) action->setText(to_qt(std::string(caption)));
}

}  // namespace oxhost::desktop
