#pragma once
/// Changes to scenes as the host's modules make them: the journal is told what reached the file and
/// what the project refused, and that is not thrown. A null scene is ignored. [ui]

#include "project/project.h"

namespace oxhost {

void begin_scene_update(scene* of);
void end_scene_update(scene* of);
void store_line(scene* of, const polyline* line);
void store_text(scene* of, const wchar_t* text);  ///< null reads as empty

/// The scene's line; null when it has none. A line that cannot be read is null as well, and then the
/// scene's open bracket is given up: an empty line must not replace one that is there.
const polyline* lend_line(scene* of);

}  // namespace oxhost
