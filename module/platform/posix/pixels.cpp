#include <cstdlib>

#include "platform/platform.h"

namespace ox::platform {

void free_pixels::operator()(std::uint8_t* pixels) const { std::free(pixels); }

pixel_memory allocate_pixels(std::size_t bytes) {
    return pixel_memory(bytes ? static_cast<std::uint8_t*>(std::calloc(bytes, 1)) : nullptr);
}

}  // namespace ox::platform
