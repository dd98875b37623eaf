#include "border/host_api/oxk_entity.h"

#include "testing/host_double/host_double.h"

namespace {
void bracket(const char* function, const char* word, void* scene, int change) {
    if (!host_double::are_given(function, {scene})) return;
    host_double::state& host = host_double::host();
    host.log.push_back(word + host_double::narrow(static_cast<host_double::scene*>(scene)->caption));
    host.live["bracket"] += change;
}
}  // namespace

void ox_scn_begin_update(void* scene) { bracket(__func__, "begin ", scene, 1); }
void ox_scn_end_update(void* scene) { bracket(__func__, "end ", scene, -1); }
