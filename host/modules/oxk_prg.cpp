#include "border/host_api/oxk_prg.h"

#include "base/line.h"
#include "session/border.h"

using oxhost::at_border;
using oxhost::section_line;

namespace {

section_line* as_line(void* pv) { return static_cast<section_line*>(pv); }

}  // namespace

void* ox_pv_d2_create() {
    return at_border([] { return new section_line; });
}

/// A null source empties the destination.
void ox_pv_d2_assign(void* destination, const void* source) {
    if (!destination) return;
    *as_line(destination) = {};
    at_border([=] {
        if (source) *as_line(destination) = *static_cast<const section_line*>(source);
    });
}

void ox_pv_d2_destroy(void* pv) { delete as_line(pv); }
