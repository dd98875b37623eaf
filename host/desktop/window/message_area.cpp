#include "desktop/window/message_area.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QTime>

#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

QStyle::StandardPixmap sign_of(message_kind kind) {
    switch (kind) {
        case message_kind::error:
            return QStyle::SP_MessageBoxCritical;
        case message_kind::question:
            return QStyle::SP_MessageBoxQuestion;
        case message_kind::information:
            return QStyle::SP_MessageBoxInformation;
    }
    return QStyle::SP_MessageBoxInformation;
}

}  // namespace

message_area::message_area(document& shown, QWidget* parent) : QListWidget(parent) {
    setSelectionMode(ExtendedSelection);
    setWordWrap(true);
    setUniformItemSizes(false);
    connect(&shown, &document::said, this, &message_area::add);
    connect(this, &QListWidget::itemClicked, this, &message_area::ask);
    name_texts();
}

void message_area::add(const note& said) {
    notes_.push_back(said);
    auto* line = new QListWidgetItem(style()->standardIcon(sign_of(said.kind)),
                                     QTime::currentTime().toString("HH:mm:ss  ") + said.text, this);
    if (said.scene) {
        QFont link = font();
        link.setUnderline(true);
        line->setFont(link);
    }
    scrollToItem(line);
}

void message_area::ask(const QListWidgetItem* line) {
    if (!line) return;
    const note& said = notes_[static_cast<std::size_t>(row(line))];
    if (said.scene) Q_EMIT asked_for(said);
}

void message_area::copy() const {
    QStringList lines;
    for (int i = 0; i < count(); ++i)
        if (item(i)->isSelected()) lines << item(i)->text();
    QApplication::clipboard()->setText(lines.join('\n'));
}

void message_area::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copy();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return ask(currentItem());
    QListWidget::keyPressEvent(event);
}

void message_area::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    QListWidget::changeEvent(event);
}

void message_area::name_texts() { setAccessibleName(say("Сообщения", "Messages")); }

}  // namespace oxhost::desktop
