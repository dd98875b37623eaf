#pragma once
/// What a reprojection would do to scenes, shown before anything is changed. [ui]

#include <QDialogButtonBox>
#include <QWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "desktop/dialogs/window_user.h"
#include "desktop/document.h"

namespace oxhost::desktop {

/// Shows it in a window over `over` and returns when that is closed; the project stays as it is, and what is
/// at work on it is not disturbed. `target` is a proj4 text, empty to reset. Without a bundle, the one beside
/// the program. Throws what `run::foresee` throws.
void preview(document& shown, std::vector<std::size_t> scenes, const std::string& target, QWidget* over,
             const std::filesystem::path& bundle = {});

/// A button beside the utility's own that shows the preview of what is chosen and checked in its dialog; only
/// the reprojection utility's dialog has one. All outlive the dialog.
void add_preview_button(document& shown, window_user& user, shell::open_dialog& dialog,
                        QDialogButtonBox& buttons, const std::filesystem::path& bundle = {});

}  // namespace oxhost::desktop
