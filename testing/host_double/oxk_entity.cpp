#include "border/host_api/oxk_entity.h"

#include "testing/host_double/host_double.h"

namespace {
void bracket(const char* word, void* scene, int change) {
    host_double::state& host = host_double::host();
    host.log.push_back(word + host_double::narrow(static_cast<host_double::scene*>(scene)->caption));
    host.live["bracket"] += change;
}
}  // namespace

void ox_scn_begin_update(void* scene) { bracket("begin ", scene, 1); }
void ox_scn_end_update(void* scene) { bracket("end ", scene, -1); }
