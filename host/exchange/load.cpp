#include <dlfcn.h>

#include "exchange/exchange.h"

namespace oxhost {

exchange& load_exchange() {
    static exchange* loaded = [] {
        Dl_info own{};
        dladdr(reinterpret_cast<const void*>(&load_exchange), &own);
        const std::filesystem::path file =
            std::filesystem::path(own.dli_fname ? own.dli_fname : "").parent_path() / "liboxhost_exchange.so";
        void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!library) throw exchange_error(file.string() + ": cannot be loaded: " + dlerror());
        const auto entry = reinterpret_cast<exchange* (*)()>(dlsym(library, "oxhost_exchange"));
        if (!entry) throw exchange_error(file.string() + ": is not the exchange library of this host");
        return entry();
    }();
    return *loaded;
}

}  // namespace oxhost
