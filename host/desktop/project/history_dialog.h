#pragma once
/// The runs whose former state the project keeps, and the way back through them.

#include <QWidget>
#include <functional>

#include "desktop/document.h"

namespace oxhost::desktop {

/// Newest first. `undo_newest` asks and takes the newest back. Returns when the window is closed.
void show_history(document& shown, QWidget* over, const std::function<void()>& undo_newest);

/// Of the open project: file, scenes, projections with their counts, attributes.
void show_properties(document& shown, QWidget* over);

}  // namespace oxhost::desktop
