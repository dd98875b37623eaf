// Left out of the bundle that lacks an export.
#if defined(_WIN32)
extern "C" __declspec(dllexport) void scary_vcl_bug_crashes_everything_on_unloading() {}
#else
extern "C" __attribute__((visibility("default"))) void scary_vcl_bug_crashes_everything_on_unloading() {}
#endif
