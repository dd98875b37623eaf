#pragma once

#include "shell/node.h"

namespace oxhost::shell {

/// Asks an element everything that a node keeps of it.
node_state read_state(node_kind kind, ox::custom_pointer element);

}  // namespace oxhost::shell
