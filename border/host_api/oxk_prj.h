#pragma once
/// Host module of the current project. [ui] Everything handed out is the host's and never freed here.

#include "border/linkage.h"

/// Null while no project is open.
OX_HOST_API void* ox_prj_get_instance(void);
/// Null where the project has no scenes.
OX_HOST_API void* ox_prj_get_scns_2d_ptr(void* project);
