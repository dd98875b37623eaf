#include "platform/windows/win32.h"

namespace ox::platform {

void* find_host_function(const char* module, const char* function) {
    const HMODULE loaded = GetModuleHandleA((std::string(module) + ".dll").c_str());
    return loaded ? reinterpret_cast<void*>(GetProcAddress(loaded, function)) : nullptr;
}

}  // namespace ox::platform
