#include "desktop/dialogs/bundle_dialog.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include "desktop/elements/draw.h"
#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

using shell::button_role;

QDialogButtonBox::ButtonRole role_of(button_role role) {
    switch (role) {
        case button_role::accept:
            return QDialogButtonBox::AcceptRole;
        case button_role::reject:
            return QDialogButtonBox::RejectRole;
        case button_role::help:
            return QDialogButtonBox::HelpRole;
        case button_role::other:
            return QDialogButtonBox::ActionRole;
    }
    return QDialogButtonBox::ActionRole;
}

QString size_key(const shell::open_dialog& dialog) { return "dialogs/" + to_qt(dialog.id()) + "/geometry"; }

}  // namespace

bundle_dialog::bundle_dialog(shell::open_dialog& dialog, QWidget* parent) : QDialog(parent), dialog_(dialog) {
    setWindowTitle(to_qt(dialog.caption()));
    setSizeGripEnabled(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(draw(dialog.root(), this), 1);
    column->addWidget(&buttons_);
    make_buttons();
    restoreGeometry(QSettings().value(size_key(dialog)).toByteArray());
    dialog_.on_buttons_changed = [this] { update_buttons(); };
}

bundle_dialog::~bundle_dialog() {
    dialog_.on_buttons_changed = {};
    QSettings().setValue(size_key(dialog_), saveGeometry());
}

void bundle_dialog::make_buttons() {
    const auto offered = dialog_.buttons();
    for (std::size_t i = 0; i < offered.size(); ++i) {
        QPushButton* made = buttons_.addButton(to_qt(offered[i].caption), role_of(offered[i].role));
        made->setAutoDefault(false);
        connect(made, &QPushButton::clicked, this, [this, i] { press(i); });
        drawn_.push_back(made);
    }
    update_buttons();
}

void bundle_dialog::update_buttons() {
    const auto offered = dialog_.buttons();
    for (std::size_t i = 0; i < offered.size() && i < drawn_.size(); ++i) {
        drawn_[i]->setEnabled(offered[i].enabled);
        if (offered[i].role == button_role::accept) drawn_[i]->setDefault(true);
    }
}

void bundle_dialog::press(std::size_t which) {
    if (dialog_.press(which)) done(dialog_.accepted() ? Accepted : Rejected);
}

void bundle_dialog::reject() {
    const auto offered = dialog_.buttons();
    for (std::size_t i = 0; i < offered.size(); ++i)
        if (offered[i].role == button_role::reject && offered[i].enabled) return press(i);
    dialog_.dismiss();
    QDialog::reject();
}

/// Enter in an input finishes the input; only then does it press the default button.
void bundle_dialog::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && focusWidget() && focusWidget()->inherits("QLineEdit")) return event->accept();
    QDialog::keyPressEvent(event);
}

}  // namespace oxhost::desktop
