#pragma once
/// Toolbars and menus: sets of tools.

#include <QPoint>
#include <QWidget>

#include "shell/node.h"

namespace oxhost::desktop {

QWidget* draw_toolbar(shell::node& toolbar, QWidget* parent);

/// Until an entry is chosen, which is then clicked, or the menu is left.
void show_menu(shell::node& menu, QWidget* over, const QPoint& place);

}  // namespace oxhost::desktop
