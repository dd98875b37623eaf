#pragma once
/// Changes to scenes as the host's modules make them: nothing is thrown, and the journal is told what
/// reached the file and what it refused. A null scene is ignored. [ui]

#include "project/project.h"

namespace oxhost {

void begin_scene_update(scene* of) noexcept;
void end_scene_update(scene* of) noexcept;
void store_line(scene* of, const polyline* line) noexcept;
void store_text(scene* of, const wchar_t* text) noexcept;  ///< null reads as empty

/// The scene's line; null when it has none. A line that cannot be read is null as well, and then the
/// scene's open bracket is given up: an empty line must not replace one that is there.
const polyline* lend_line(scene* of) noexcept;

}  // namespace oxhost
