#pragma once
/// The buttons at the foot of the dialog: "Apply" and "Close".

#include "c_common/object.h"

struct button_box {
    struct object object;
    void (*apply)(void* context);  ///< called by "Apply", which leaves the dialog open
    void* context;
    ox_pointer views[2];
};

struct button_box new_button_box(void (*apply)(void* context), void* context);
