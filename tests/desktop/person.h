#pragma once
/// Somebody at the windows that come up one after the other.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QProgressDialog>
#include <QTest>
#include <QTimer>
#include <deque>
#include <functional>

namespace oxhost::desktop {

/// Does one step after the other, each in the window that is then on top and must be of a certain kind.
class person {
public:
    template <class Window>
    void in(std::function<void(Window&)> act) {
        steps_.push_back([act](QWidget* top) {
            auto* window = qobject_cast<Window*>(top);
            if (window) act(*window);
            return window != nullptr;  // else it is still to come
        });
    }
    /// Presses a key in a window of the kind.
    template <class Window>
    void key(Qt::Key pressed) {
        in<Window>([pressed](Window& window) { QTest::keyClick(&window, pressed); });
    }
    template <class Window = QDialog>
    void click(const QString& caption) {
        in<Window>([caption](Window& window) {
            for (auto* each : window.template findChildren<QAbstractButton*>())
                if (each->isVisible() && each->text().remove('&') == caption)
                    return QTest::mouseClick(each, Qt::LeftButton);
            ADD_FAILURE() << "no button " << caption.toStdString();
        });
    }
    /// One look at a time: one that was left over from an earlier window is stale.
    void begin() {
        QTimer::singleShot(20, &alive_, [this, mine = ++looks_] {
            if (mine == looks_) next();
        });
    }
    bool is_done() const { return steps_.empty(); }

private:
    void next() {
        QWidget* top = QApplication::activeModalWidget();
        if (!top) return steps_.empty() ? void() : begin();
        if (qobject_cast<QProgressDialog*>(top)) return begin();  // on a busy machine it comes up
        if (steps_.empty()) {
            ADD_FAILURE() << "left open: " << top->windowTitle().toStdString();
            top->close();
            return begin();
        }
        const auto step = steps_.front();
        steps_.pop_front();
        begin();  // a step may open a window, and returns when that is closed
        if (step(top)) return;
        if (++vain_ < 1500) return steps_.push_front(step);
        ADD_FAILURE() << top->metaObject()->className() << ' ' << top->windowTitle().toStdString();
        top->close();
    }
    std::deque<std::function<bool(QWidget*)>> steps_;
    int vain_ = 0;
    int looks_ = 0;
    QObject alive_;
};

}  // namespace oxhost::desktop
