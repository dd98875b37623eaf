#pragma once
/// Tables.

#include "border/c/ox_pointer.h"

/// Sets the check box of every row.
void check_all_rows(ox_pointer outline);
