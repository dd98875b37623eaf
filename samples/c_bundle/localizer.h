#pragma once
/// The host's localizer, which speaks for this bundle where it has one.

#include "border/c/ox_pointer.h"

/// Asks the context for the registry and the registry for the localizer of this bundle. The first context
/// that is not empty counts.
void fetch_localizer(ox_pointer context);
void forget_localizer(void);

/// Empty while there is none; it may end at any time.
ox_pointer current_localizer(void);
