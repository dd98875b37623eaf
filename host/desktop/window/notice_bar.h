#pragma once
/// A line above the views that offers something and waits: the file was changed by another program.

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <functional>

namespace oxhost::desktop {

class notice_bar final : public QFrame {
    Q_OBJECT
public:
    explicit notice_bar(QWidget* parent = nullptr);

    /// In place of what was offered before. `act` is done when the button is pressed; then the bar goes.
    void offer(const QString& what, const QString& button, std::function<void()> act);

private:
    QLabel text_;
    QPushButton take_, leave_;
    std::function<void()> act_;
};

}  // namespace oxhost::desktop
