#include "border/host_api/oxk_prg.h"

#include "testing/host_double/host_double.h"

using host_double::are_given;
using host_double::host;
using host_double::line;

void* ox_pv_d2_create(void) {
    if (host().refuses("pv")) return nullptr;
    ++host().live["pv"];
    return new line;
}
void ox_pv_d2_assign(void* destination, const void* source) {
    if (are_given(__func__, {destination, source}))
        *static_cast<line*>(destination) = *static_cast<const line*>(source);
}
void ox_pv_d2_destroy(void* pv) {
    if (!are_given(__func__, {pv})) return;
    --host().live["pv"];
    delete static_cast<line*>(pv);
}
