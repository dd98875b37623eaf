#pragma once
/// The interfaces of the vocabulary that have no operations here: name, query, table and cast only.

#include "border/binding.h"

namespace ox {

#define OX_BOUND(words, version)
#define OX_ASKED(words, version)
#define OX_PLAIN(words, version)                         \
    struct words##_impl : binding<words##_impl, words> { \
        using table = operations<>;                      \
    };
#include "border/interface_names.inc"
#undef OX_PLAIN
#undef OX_ASKED
#undef OX_BOUND

}  // namespace ox
