#pragma once
/// The language of the window, of the host's modules and of the bundles, switched while all of it is open.

#include "base/language.h"

namespace oxhost::desktop {

/// The one chosen last time, else the environment's; Qt's own texts with it. Once, at the start.
void begin_language();

/// From now on and at the next start. Every widget is told by QEvent::LanguageChange.
void switch_language(language wanted);

}  // namespace oxhost::desktop
