#include "platform/windows/win32.h"

namespace ox::platform {

void free_pixels::operator()(std::uint8_t* pixels) const { VirtualFree(pixels, 0, MEM_RELEASE); }

pixel_memory allocate_pixels(std::size_t bytes) {
    void* memory = bytes ? VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE) : nullptr;
    return pixel_memory(static_cast<std::uint8_t*>(memory));
}

}  // namespace ox::platform
