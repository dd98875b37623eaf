#include "support/string_adapter.h"

#include "border/host_api/oxk_basic.h"
#include "support/encodings.h"

namespace ox {
namespace {

void narrow_callback(const char* text, void* context) {
    try {
        static_cast<Tox_string_adapter_base*>(context)->assign_narrow(text);
    } catch (...) {  // the host's code is not to be unwound
    }
}

void wide_callback(const wchar_t* text, void* context) {
    try {
        static_cast<Tox_string_adapter_base*>(context)->assign_wide(text);
    } catch (...) {
    }
}

}  // namespace

Tox_string_adapter_base::Tox_string_adapter_base()
    : handle_(ox_string_adp_create(narrow_callback, wide_callback, this)) {}

Tox_string_adapter_base::~Tox_string_adapter_base() {
    if (handle_) ox_string_adp_destroy(handle_);
}

void Tox_std_wstring_adapter::assign_wide(const wchar_t* text) {
    if (text) {
        *target_ = text;
    } else {
        target_->clear();
    }
}

void Tox_std_wstring_adapter::assign_narrow(const char* text) {
    *target_ = text ? system_to_wide(text) : std::wstring();
}

}  // namespace ox
