#include "border/host_api/oxk_prg.h"

#include <new>

#include "base/line.h"
#include "session/border.h"

namespace {

oxhost::polyline* as_line(void* pv) { return static_cast<oxhost::polyline*>(pv); }

}  // namespace

void* ox_pv_d2_create() { return new (std::nothrow) oxhost::polyline; }

/// A null source empties the destination.
void ox_pv_d2_assign(void* destination, const void* source) {
    if (!destination) return;
    as_line(destination)->clear();
    oxhost::at_border([=] {
        if (source) *as_line(destination) = *static_cast<const oxhost::polyline*>(source);
    });
}

void ox_pv_d2_destroy(void* pv) { delete as_line(pv); }
