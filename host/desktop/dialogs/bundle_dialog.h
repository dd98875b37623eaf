#pragma once
/// The window of one open dialog of a bundle.

#include <QDialog>
#include <QDialogButtonBox>
#include <vector>

#include "shell/dialogs.h"

namespace oxhost::desktop {

class bundle_dialog final : public QDialog {
public:
    bundle_dialog(shell::open_dialog& dialog, QWidget* parent);
    ~bundle_dialog() override;

    QDialogButtonBox& buttons() { return buttons_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// Escape, the frame's close box: the refusing button where there is one.
    void reject() override;

private:
    void make_buttons();
    void update_buttons();
    void press(std::size_t which);

    shell::open_dialog& dialog_;
    QDialogButtonBox buttons_{this};
    std::vector<QPushButton*> drawn_;  ///< of the dialog's buttons, in their order
};

}  // namespace oxhost::desktop
