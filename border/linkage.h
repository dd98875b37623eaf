#pragma once
/// How functions cross the border of a shared library: C linkage and the platform's own calling
/// convention, exported or imported by name. Everything else stays hidden.

#if defined(_WIN32)
#define OX_EXPORT extern "C" __declspec(dllexport)
#define OX_IMPORT extern "C" __declspec(dllimport)
#else
#define OX_EXPORT extern "C" __attribute__((visibility("default")))
#define OX_IMPORT OX_EXPORT
#endif
