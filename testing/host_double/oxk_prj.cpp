#include "border/host_api/oxk_prj.h"

#include "testing/host_double/host_double.h"

using host_double::host;

void* ox_prj_get_instance(void) { return host().project_open ? &host() : nullptr; }
void* ox_prj_get_scns_2d_ptr(void* project) {
    return !host().is_null(project, __func__) && host().project_has_scenes ? &host().scenes : nullptr;
}
