// What each bundle compiles for itself: its fault, and what must be decided before it runs.

#include "fault.h"

#include "border/linkage.h"

const broken::fault broken::deviation = broken::fault::BUNDLE_FAULT;

#if !defined(BUNDLE_IS_no_unload_guard)
OX_EXPORT void scary_vcl_bug_crashes_everything_on_unloading() {}
#endif

#if defined(BUNDLE_IS_unopenable) && defined(_WIN32)
#include <windows.h>
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) { return FALSE; }
#elif defined(BUNDLE_IS_unopenable)
extern "C" void ox_function_of_no_host();
[[gnu::used]] void (*const needed)() = &ox_function_of_no_host;
#endif
