#include "platform/posix/dib.h"
#include "platform/posix/picture_files.h"

namespace ox::platform {

bitmap_buffer read_bitmap_file(byte_view file) {
    constexpr std::uint64_t file_header = 14;
    if (file.u16(0) != 0x4D42) throw damaged_picture("no bitmap file");  // "BM"
    const byte_view dib = file.from(file_header);
    const dib_header header = read_dib_header(dib);
    const std::uint64_t rows_offset = file.u32(10);
    if (rows_offset < file_header) throw damaged_picture("pixels inside the header");
    const pixel_rows rows = read_rows(dib, header, rows_offset - file_header, header.height);

    // Fits 64 bits: the rows are in memory and a pixel takes at least one bit of them.
    const std::uint64_t size = 4ull * header.width * header.height;
    if (size > UINT32_MAX) throw damaged_picture("too large");
    bitmap_buffer result;
    result.pixels = allocate_pixels(static_cast<std::size_t>(size));
    if (!result.pixels) return {};
    result.width = static_cast<std::int32_t>(header.width);
    result.height = static_cast<std::int32_t>(header.height);
    result.size = static_cast<std::uint32_t>(size);
    result.loaded = true;

    std::uint8_t* out = result.pixels.get();
    for (std::uint32_t y = 0; y < header.height; ++y) {
        const std::uint32_t row = header.top_down ? header.height - 1 - y : y;
        for (std::uint32_t x = 0; x < header.width; ++x) {
            const colour pixel = rows.at(x, row);
            for (const std::uint8_t part : {pixel.blue, pixel.green, pixel.red, pixel.unused}) *out++ = part;
        }
    }
    return result;
}

}  // namespace ox::platform
