#pragma once
/// A host's view that counts how often it is told.

#include <functional>

#include "border/interfaces/layouts.h"

namespace ox::toolkit {

struct counting_view : element_view_slots {
    int changes = 0;
    std::function<void()> on_change;
    void changed() override {
        ++changes;
        if (on_change) on_change();
    }
    custom_pointer pointer() { return make_pointer<element_view_slots>(*this); }
};

}  // namespace ox::toolkit
