#pragma once
/// How a host function is declared. The module imports the functions from the host's modules; a host
/// that implements them defines OX_HOST_IMPLEMENTS and exports them. Handles are opaque pointers, no
/// exception crosses.

#include <cstddef>
#include <cstdint>

#include "border/linkage.h"

#if defined(OX_HOST_IMPLEMENTS)
#define OX_HOST_API OX_EXPORT
#else
#define OX_HOST_API OX_IMPORT
#endif
