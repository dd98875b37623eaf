#include "support/host_basic_double.h"

#include <memory>

#define OX_HOST_IMPLEMENTS
#include "host_api/oxk_basic.h"

namespace {

struct adapter {
    void (*narrow)(const char*, void*);
    void (*wide)(const wchar_t*, void*);
    void* context;
};

}  // namespace

namespace test_host {

int language = 50000;
std::wstring main_module_path;
int live_adapters = 0;

void deliver_wide(void* handle, const wchar_t* text) {
    const auto* to = static_cast<adapter*>(handle);
    to->wide(text, to->context);
}

void deliver_narrow(void* handle, const char* text) {
    const auto* to = static_cast<adapter*>(handle);
    to->narrow(text, to->context);
}

}  // namespace test_host

void* ox_string_adp_create(void (*narrow)(const char*, void*), void (*wide)(const wchar_t*, void*),
                           void* context) {
    ++test_host::live_adapters;
    return std::make_unique<adapter>(adapter{narrow, wide, context}).release();
}

void ox_string_adp_destroy(void* handle) {
    --test_host::live_adapters;
    std::unique_ptr<adapter>(static_cast<adapter*>(handle));
}

int ox_res_get_lng() { return test_host::language; }

void ox_options_get_main_module_path(void* handle) {
    test_host::deliver_wide(handle, test_host::main_module_path.c_str());
}
