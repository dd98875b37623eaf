#include "border/host_api/oxk_prj.h"

#include "testing/host_double/host_double.h"

using host_double::host;

void* ox_prj_get_instance(void) { return host().project_open ? &host() : nullptr; }
void* ox_prj_get_scns_2d_ptr(void* project) {
    if (!host_double::are_given(__func__, {project}) || !host().project_has_scenes) return nullptr;
    return &static_cast<host_double::state*>(project)->scenes;
}
