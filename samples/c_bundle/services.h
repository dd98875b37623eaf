#pragma once
/// The services of this bundle: its utility, and the places where the host attaches its dialog hosts.

#include "border/c/ox_pointer.h"

/// Id of the utility, and of its dialog.
extern const wchar_t utility_id[];

/// A new service owned by `owner` (a referent pointer or empty), as the interface by which it is published.
/// Empty without memory. `id` stays in memory.
ox_pointer new_utility_service(const wchar_t* id, ox_pointer owner);
ox_pointer new_dialog_service(const wchar_t* id, ox_pointer owner);

/// The dialog host that is attached to a dialog service; empty while there is none.
ox_pointer dialog_host_of(ox_pointer dialog_service);
