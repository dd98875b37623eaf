#pragma once
/// How a host function is declared. The module imports the functions from the host's modules; a host
/// that implements them defines OX_HOST_IMPLEMENTS and exports them. Plain C calling convention,
/// handles are opaque pointers, no exception crosses.

#include <cstddef>
#include <cstdint>

#if defined(_WIN32) && defined(OX_HOST_IMPLEMENTS)
#define OX_HOST_API extern "C" __declspec(dllexport)
#elif defined(_WIN32)
#define OX_HOST_API extern "C" __declspec(dllimport)
#else
#define OX_HOST_API extern "C" __attribute__((visibility("default")))
#endif
