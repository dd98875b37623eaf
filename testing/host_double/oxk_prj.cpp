#include "border/host_api/oxk_prj.h"

#include "testing/host_double/host_double.h"

void* ox_prj_get_instance(void) { return &host_double::host(); }
void* ox_prj_get_scns_2d_ptr(void* project) { return &static_cast<host_double::state*>(project)->scenes; }
