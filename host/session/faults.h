#pragma once
/// Exceptions that were kept from crossing the border, told to whoever runs the host. [ui]

#include "border/fault.h"

namespace oxhost {

using fault_listener = void (*)(const ox::border_fault& fault);

/// Told of every fault in this process: in C functions of the host's modules, in what the shell serves, in
/// bundles that report theirs. Null, as at first, keeps silent. Must not throw.
void listen_to_faults(fault_listener listener);

/// The border's hook is a variable of each library and program; those of the host point here.
void tell_fault(const ox::border_fault& fault);

}  // namespace oxhost
