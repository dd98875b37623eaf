#pragma once
/// What the module's support layer asks of the host, under the test's control.

#include <string>

namespace test_host {

extern int language;                   ///< 0 Russian
extern std::wstring main_module_path;  ///< delivered wide
extern int live_adapters;

/// Calls the adapter's callbacks as a host function would.
void deliver_wide(void* adapter, const wchar_t* text);
void deliver_narrow(void* adapter, const char* text);

}  // namespace test_host
