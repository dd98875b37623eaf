#include "desktop/elements/tools.h"

#include <QMenu>
#include <QToolBar>

#include "desktop/elements/draw.h"
#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

using shell::node_kind;

/// A tool as an action that follows it.
QAction* action_of(shell::node& tool, QObject* owner) {
    auto* made = new QAction(owner);
    tool.on_changed = [&tool, made] {
        const shell::node_state& state = tool.state();
        made->setText(to_qt(state.caption));
        made->setToolTip(to_qt(state.hint.empty() ? state.caption : state.hint));
        made->setIcon(icon_of(tool.image()));
        made->setEnabled(state.enabled);
    };
    tool.on_changed();
    made->setObjectName(to_qt(tool.id()));
    return made;
}

/// The tools of all sets, with a separator between two sets.
template <class Menu, class Act>
void add_tools(shell::node& sets, Menu& menu, const Act& act) {
    bool first = true;
    for (const auto& set : sets.children()) {
        if (set->kind() != node_kind::tool_set) continue;
        if (!first) menu.addSeparator();
        first = false;
        for (const auto& tool : set->children()) {
            QAction* made = action_of(*tool, &menu);
            menu.addAction(made);
            QObject::connect(made, &QAction::triggered, &menu, [act, tool = tool.get()] { act(*tool); });
        }
    }
}

}  // namespace

QWidget* draw_toolbar(shell::node& toolbar, QWidget* parent) {
    auto* drawn = new QToolBar(parent);
    const auto fill = [&toolbar, drawn] {
        drawn->clear();
        add_tools(toolbar, *drawn, [](shell::node& tool) { tool.click(); });
        for (QAction* each : drawn->actions()) {
            QWidget* button = drawn->widgetForAction(each);
            button->setFocusPolicy(Qt::TabFocus);
            button->setAccessibleName(each->text());
        }
    };
    toolbar.on_changed = fill;
    fill();
    return drawn;
}

void show_menu(shell::node& menu, QWidget* over, const QPoint& place) {
    QMenu drawn(over);
    drawn.setToolTipsVisible(true);
    shell::node* chosen = nullptr;
    add_tools(menu, drawn, [&chosen](shell::node& tool) { chosen = &tool; });
    drawn.exec(place);
    if (chosen) chosen->click();
}

}  // namespace oxhost::desktop
