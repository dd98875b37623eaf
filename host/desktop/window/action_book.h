#pragma once
/// The actions of a window, each with its texts in both languages written once, where the action is made.

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QObject>
#include <functional>
#include <utility>
#include <vector>

#include "base/language.h"
#include "desktop/document.h"

namespace oxhost::desktop {

class action_book final : public QObject {
    Q_OBJECT
public:
    /// What an action throws is said there, and in a box over the window.
    action_book(document& shown, QWidget* window) : QObject(window), document_(shown), window_(window) {}

    QMenu* menu(QMenu* parent, bilingual caption);  ///< null parent: of the window's menu bar
    QAction* action(QMenu* parent, bilingual caption, const QKeySequence& keys, std::function<void()> act);
    /// One that is checked or not, and acts when the user changes that.
    QAction* choice(QMenu* parent, bilingual caption, std::function<void(bool)> act);
    /// What `act` throws is told like an action's.
    void attempt(const std::function<void()>& act);

    void name_texts();  ///< in the language of now

private:
    QAction* named(QAction* made, bilingual caption);

    document& document_;
    QWidget* window_;
    std::vector<std::pair<QAction*, bilingual>> texts_;
};

}  // namespace oxhost::desktop
