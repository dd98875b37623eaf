#pragma once
/// Files with lines made scenes of the open project.

#include <QWidget>
#include <filesystem>
#include <vector>

#include "desktop/document.h"

namespace oxhost::desktop {

/// Asks what the command line's options ask, and imports; what was taken, dropped and changed is told in the
/// notes. All files, or none of them. Throws what run::import_into throws.
void import_files(document& shown, const std::vector<std::filesystem::path>& files, QWidget* over);

}  // namespace oxhost::desktop
