#pragma once
/// How functions cross the border of a shared library: C linkage and the platform's own calling
/// convention, exported or imported by name. Everything else stays hidden.

#include <cstdint>

#if defined(_WIN32)
#define OX_EXPORT extern "C" __declspec(dllexport)
#define OX_IMPORT extern "C" __declspec(dllimport)
#else
#define OX_EXPORT extern "C" __attribute__((visibility("default")))
#define OX_IMPORT OX_EXPORT
#endif

/// A host function: modules import it from the host; a host that implements it defines OX_HOST_IMPLEMENTS and
/// exports it. Handles are opaque pointers, no exception crosses.
#if defined(OX_HOST_IMPLEMENTS)
#define OX_HOST_API OX_EXPORT
#else
#define OX_HOST_API OX_IMPORT
#endif
