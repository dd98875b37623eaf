#include <dlfcn.h>

#include "platform/platform.h"

namespace ox::platform {

/// The functions of all host modules share one name space here, so the module's name is not needed.
void* find_host_function(const char*, const char* function) { return dlsym(RTLD_DEFAULT, function); }

}  // namespace ox::platform
