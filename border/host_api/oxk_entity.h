#pragma once
/// Host module of entities: the bracket around the changes to one scene. [ui]
/// Older hosts have neither function, so the module never links to them: it looks them up by name
/// each time it needs them.

#include "border/linkage.h"

OX_HOST_API void ox_scn_begin_update(void* scene);
OX_HOST_API void ox_scn_end_update(void* scene);
