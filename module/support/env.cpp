#include "support/env.h"

namespace ox {
namespace {

Tox_env* installed = nullptr;

}  // namespace

void set_env(Tox_env* sink) { installed = sink; }

Tox_env* get_env() { return installed; }

}  // namespace ox
