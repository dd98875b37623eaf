#include "border/host_api/oxk_entity.h"

#include "modules/scene_updates.h"
#include "session/border.h"

void ox_scn_begin_update(void* scene) {
    oxhost::at_border([=] { oxhost::begin_scene_update(static_cast<oxhost::scene*>(scene)); });
}

void ox_scn_end_update(void* scene) {
    oxhost::at_border([=] { oxhost::end_scene_update(static_cast<oxhost::scene*>(scene)); });
}
