#pragma once
/// A host's view that counts how often it is told.

#include "border/interfaces/layouts.h"

namespace ox::toolkit {

struct counting_view : element_view_slots {
    int changes = 0;
    void changed() override { ++changes; }
    custom_pointer pointer() { return make_pointer<element_view_slots>(*this); }
};

}  // namespace ox::toolkit
