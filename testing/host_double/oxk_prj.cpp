#include "border/host_api/oxk_prj.h"

#include "testing/host_double/host_double.h"

using host_double::host;

void* ox_prj_get_instance(void) { return host().has_project ? &host() : nullptr; }
void* ox_prj_get_scns_2d_ptr(void* project) {
    if (!host_double::are_given(__func__, {project}) || !host().has_collection) return nullptr;
    return &static_cast<host_double::state*>(project)->scenes;
}
