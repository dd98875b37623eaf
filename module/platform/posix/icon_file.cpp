#include <algorithm>

#include "platform/posix/dib.h"
#include "platform/posix/picture_files.h"

namespace ox::platform {
namespace {

constexpr std::uint32_t icon = 1, cursor = 2;

}  // namespace

masked_bitmap_buffer read_icon_file(byte_view file) {
    const std::uint32_t kind = file.u16(2);
    if (file.u16(0) != 0 || (kind != icon && kind != cursor) || file.u16(4) == 0)
        throw damaged_picture("no icon file");
    const byte_view entry = file.part(6, 16);
    const byte_view image = file.part(entry.u32(12), entry.u32(8));
    const dib_header header = read_dib_header(image);
    if (header.top_down || header.height % 2 != 0) throw damaged_picture("icon without mask");

    // Rows of colour, then rows of the mask. In one bit per pixel the palette is black and white, so
    // that the colour rows are just what a monochrome icon keeps below its mask.
    const std::uint32_t width = header.width, height = header.height / 2;
    const std::uint64_t colour_offset = header.palette_offset + header.palette_size;
    const pixel_rows colours = read_rows(image, header, colour_offset, height);
    const dib_header mask_header{width, height, false, 1, 0, 0};
    const pixel_rows mask = read_rows(image, mask_header, colour_offset + colours.pitch * height, height);

    const std::uint64_t plane = std::uint64_t{width} * width;
    if (4 * plane > UINT32_MAX) throw damaged_picture("too large");
    masked_bitmap_buffer result;
    result.pixels = allocate_pixels(static_cast<std::size_t>(4 * plane));
    if (!result.pixels) return {};
    // The hot spot of an icon is its centre.
    result.hot_spot_x = kind == cursor ? entry.u16(4) : width / 2;
    result.hot_spot_y = kind == cursor ? entry.u16(6) : height / 2;
    result.width = result.height = width;
    result.size = static_cast<std::uint32_t>(4 * plane);
    result.mask_offset = static_cast<std::uint32_t>(3 * plane);
    result.loaded = true;

    std::uint8_t* colour_out = result.pixels.get();
    std::uint8_t* mask_out = colour_out + result.mask_offset;
    for (std::uint32_t y = 0; y < std::min(width, height); ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            const colour pixel = colours.at(x, y);
            for (const std::uint8_t part : {pixel.blue, pixel.green, pixel.red}) *colour_out++ = part;
            *mask_out++ = mask.index(x, y) ? 255 : 0;
        }
    }
    return result;
}

}  // namespace ox::platform
