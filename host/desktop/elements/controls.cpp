#include "desktop/elements/controls.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "desktop/elements/draw.h"
#include "desktop/elements/tools.h"
#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

constexpr qsizetype many_items = 20;

/// Shows the text now and whenever the element has told.
template <class Show>
void follow(shell::node& followed, const Show& show) {
    followed.on_changed = show;
    show();
}

/// As many decimals as it has, at most those of the element; nothing for what is no number.
QString written(const shell::node_state& state) {
    if (!std::isfinite(state.value)) return {};
    QString text = QString::number(state.value, 'f', state.decimals);
    if (text.contains('.')) {
        while (text.endsWith('0')) text.chop(1);
        if (text.endsWith('.')) text.chop(1);
    }
    return text;
}

}  // namespace

QWidget* draw_label(shell::node& label, QWidget* parent) {
    auto* drawn = new QLabel(parent);
    drawn->setTextFormat(Qt::PlainText);
    follow(label, [&label, drawn] {
        drawn->setText(to_qt(label.state().caption));
        drawn->setToolTip(to_qt(label.state().hint));
    });
    return drawn;
}

QWidget* draw_button(shell::node& button, QWidget* parent) {
    auto* drawn = new QPushButton(parent);
    drawn->setAutoDefault(false);
    follow(button, [&button, drawn] {
        const shell::node_state& state = button.state();
        drawn->setText(to_qt(state.caption) + (button.has_menu() ? QString(" \u25be") : QString()));
        drawn->setAccessibleName(to_qt(state.caption.empty() ? state.hint : state.caption));
        drawn->setToolTip(to_qt(state.hint));
        drawn->setIcon(icon_of(button.image()));
        drawn->setEnabled(state.enabled);
    });
    QObject::connect(drawn, &QPushButton::clicked, drawn, [&button, drawn] {
        if (const auto menu = button.open_menu())
            show_menu(*menu, drawn, drawn->mapToGlobal(QPoint(0, drawn->height())));
        else
            button.click();
    });
    return drawn;
}

QWidget* draw_input(shell::node& input, QWidget* parent) {
    auto* drawn = new QLineEdit(parent);
    drawn->setMinimumWidth(drawn->fontMetrics().averageCharWidth() * 24);
    const auto show = [&input, drawn] {
        const shell::node_state& state = input.state();
        if (drawn->text() != to_qt(state.text)) {
            drawn->setText(to_qt(state.text));
            drawn->setCursorPosition(0);
        }
        drawn->setToolTip(to_qt(state.hint));
        drawn->setEnabled(state.enabled);
        drawn->setReadOnly(state.read_only);
    };
    follow(input, show);
    QObject::connect(drawn, &QLineEdit::editingFinished, drawn, [&input, drawn, show] {
        if (!drawn->isModified()) return;
        drawn->setModified(false);
        input.type(drawn->text().toStdString());
        show();  // what was refused goes back
    });
    return drawn;
}

QWidget* draw_number(shell::node& number, QWidget* parent) {
    auto* drawn = new QLineEdit(parent);
    drawn->setAlignment(Qt::AlignRight);
    drawn->setMinimumWidth(drawn->fontMetrics().averageCharWidth() * 14);
    const auto show = [&number, drawn] {
        const shell::node_state& state = number.state();
        if (!drawn->isModified() || drawn->text() != written(state)) drawn->setText(written(state));
        drawn->setToolTip(to_qt(state.hint));
        drawn->setEnabled(state.enabled);
        drawn->setReadOnly(state.read_only);
    };
    follow(number, show);
    QObject::connect(drawn, &QLineEdit::editingFinished, drawn, [&number, drawn, show] {
        if (!drawn->isModified()) return;
        drawn->setModified(false);
        bool is_number = false;
        const double value = drawn->text().trimmed().replace(',', '.').toDouble(&is_number);
        if (is_number) number.enter(value);
        show();
    });
    return drawn;
}

QWidget* draw_output(shell::node& output, QWidget* parent) {
    auto* drawn = new QPlainTextEdit(parent);
    drawn->setReadOnly(true);
    drawn->setTabChangesFocus(true);
    const QFontMetrics letters = drawn->fontMetrics();
    drawn->setMinimumSize(letters.averageCharWidth() * 30, letters.lineSpacing() * 4);
    follow(output, [&output, drawn] { drawn->setPlainText(to_qt(output.state().text)); });
    return drawn;
}

choice_widget::choice_widget(shell::node& choice, QWidget* parent) : QComboBox(parent), node_(choice) {
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    node_.on_changed = [this] { update_items(); };
    update_items();
    connect(this, &QComboBox::activated, this, [this](int item) {
        node_.choose(static_cast<std::uint32_t>(item));
        update_items();
    });
}

void choice_widget::update_items() {
    const QSignalBlocker quiet(this);
    const shell::node_state& state = node_.state();
    if (state.items != items_) {
        items_ = state.items;
        clear();
        QStringList captions;
        for (const std::string& each : items_) captions << to_qt(each);
        addItems(captions);
        const bool searched = captions.size() > many_items;
        if (searched != isEditable()) setEditable(searched);
        if (searched) {
            completer()->setCompletionMode(QCompleter::PopupCompletion);
            completer()->setFilterMode(Qt::MatchContains);
            completer()->setCaseSensitivity(Qt::CaseInsensitive);
            connect(lineEdit(), &QLineEdit::editingFinished, this, &choice_widget::take_typed,
                    Qt::UniqueConnection);
        }
    }
    setCurrentIndex(state.current ? static_cast<int>(*state.current) : -1);
    if (isEditable()) lineEdit()->setText(currentIndex() < 0 ? to_qt(state.text) : currentText());
    if (isEditable()) lineEdit()->setCursorPosition(0);
    setToolTip(to_qt(state.hint));
    setEnabled(state.enabled);
}

/// An item's caption, or a part that only one has; else what was there comes back.
void choice_widget::take_typed() {
    if (!lineEdit()->isModified()) return;
    lineEdit()->setModified(false);
    const QString typed = lineEdit()->text();
    int found = findText(typed, Qt::MatchFixedString);
    if (found < 0 && !typed.isEmpty()) {
        const auto fitting =
            model()->match(model()->index(0, 0), Qt::DisplayRole, typed, 2, Qt::MatchContains);
        if (fitting.size() == 1) found = fitting.front().row();
    }
    if (found >= 0) node_.choose(static_cast<std::uint32_t>(found));
    update_items();
}

}  // namespace oxhost::desktop
