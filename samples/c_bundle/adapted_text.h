#pragma once
/// Texts that host functions deliver to a string adapter.

#include <stddef.h>

/// The text that `get` has for a handle, on the heap: the caller frees it. Null when there is none.
wchar_t* adapted_text(void (*get)(void* handle, void* adapter), void* handle);
