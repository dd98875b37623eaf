#pragma once

#include <string>

#include "shell/dialogs.h"

namespace oxhost::app {

/// A dialog as it is shown, as text: a line for each control with its caption, value and choices, groups
/// indented under theirs.
std::string dialog_text(shell::open_dialog& dialog);

}  // namespace oxhost::app
