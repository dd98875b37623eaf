#pragma once
/// windows.h with nothing but what this folder uses, and the handles that close themselves.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <memory>
#include <type_traits>

#include "platform/platform.h"

namespace ox::platform {

inline HMODULE as_handle(resource_module module) {
    return const_cast<HMODULE>(static_cast<const std::remove_pointer_t<HMODULE>*>(module));
}

/// Resource number, or resource type number, as the resource functions take it.
inline const wchar_t* numbered(std::uint32_t id) { return MAKEINTRESOURCEW(id); }

struct release_handle {
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    void operator()(HDC context) const { DeleteDC(context); }
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
/// Handle released at the end of its scope.
template <class Handle>
using owned = std::unique_ptr<std::remove_pointer_t<Handle>, release_handle>;

}  // namespace ox::platform
