#include "desktop/window/notice_bar.h"

#include <QHBoxLayout>

#include "desktop/text.h"

namespace oxhost::desktop {

notice_bar::notice_bar(QWidget* parent) : QFrame(parent) {
    setFrameShape(StyledPanel);
    auto* row = new QHBoxLayout(this);
    row->addWidget(&text_, 1);
    row->addWidget(&take_);
    row->addWidget(&leave_);
    text_.setWordWrap(true);
    connect(&take_, &QPushButton::clicked, this, [this] {
        hide();
        if (act_) act_();
    });
    connect(&leave_, &QPushButton::clicked, this, &QWidget::hide);
    hide();
}

void notice_bar::offer(const QString& what, const QString& button, std::function<void()> act) {
    act_ = std::move(act);
    text_.setText(what);
    take_.setText(button);
    leave_.setText(say("Не сейчас", "Not now"));
    setAccessibleName(what);
    show();
}

}  // namespace oxhost::desktop
