#pragma once
/// Shows the dialogs of bundles: prints what they show and does what a user might.

#include "c_common/object.h"

struct dialog_host {
    struct object object;
};

struct dialog_host new_dialog_host(void);
