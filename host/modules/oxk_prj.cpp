#include "border/host_api/oxk_prj.h"

#include "project/project.h"

void* ox_prj_get_instance() { return oxhost::current_project(); }

/// A project is its own collection of 2D scenes.
void* ox_prj_get_scns_2d_ptr(void* project) { return project; }
