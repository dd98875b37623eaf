#pragma once
/// How functions cross the border of a shared library: C linkage, the platform's own calling convention,
/// found by name. Everything else of a bundle or host module stays hidden.

#if defined(__cplusplus)
#define OX_C_LINKAGE extern "C"
#else
#define OX_C_LINKAGE extern
#endif

#if defined(_WIN32)
#define OX_C_EXPORT OX_C_LINKAGE __declspec(dllexport)
#define OX_C_IMPORT OX_C_LINKAGE __declspec(dllimport)
#else
#define OX_C_EXPORT OX_C_LINKAGE __attribute__((visibility("default")))
#define OX_C_IMPORT OX_C_EXPORT
#endif
