#pragma once
/// The elements of a bundle's dialog as widgets: each kind by the natural one of its sort. They follow what
/// the elements tell, one by one, and hand on what the user does.

#include <QIcon>
#include <QWidget>

#include "shell/node.h"

namespace oxhost::desktop {

/// The widget of an element and of all that stands in it. It ends before its node does.
QWidget* draw(shell::node& root, QWidget* parent);

QIcon icon_of(const shell::picture& image);  ///< null for an empty one

}  // namespace oxhost::desktop
