#pragma once
/// The dialog of the utility: one input for a projection, and what pressing "Apply" tells about the project.

#include "border/c/ox_pointer.h"

/// Shows the dialog and returns when it is closed; an empty dialog host shows nothing.
void show_dialog(ox_pointer dialog_host);
