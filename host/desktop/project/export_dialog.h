#pragma once
/// Scenes of the open project written to a file of another format.

#include <QWidget>

#include "desktop/document.h"

namespace oxhost::desktop {

/// Asks where to and in which projection, and exports; what the format cannot hold is told in the notes.
/// Replaces a file only when told so, a project never. Throws what run::export_scenes throws.
void export_scenes(document& shown, QWidget* over);

}  // namespace oxhost::desktop
