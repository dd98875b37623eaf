// The header, palette and rows that .bmp and .ico files share, and the two kinds of file around them.

#include "platform/posix/picture_files.h"

namespace ox::platform {
namespace {

constexpr std::uint32_t icon = 1, cursor = 2;

struct colour {
    std::uint8_t blue = 0, green = 0, red = 0, unused = 0;
};

/// Rows of 1, 4, 8, 24 or 32 uncompressed bits per pixel, each padded to 4 bytes.
struct pixel_rows {
    byte_view bytes;
    std::uint32_t bits;   ///< per pixel
    std::uint64_t pitch;  ///< bytes from row to row
    byte_view palette;    ///< 4 bytes per colour: blue, green, red, unused

    std::uint32_t index(std::uint64_t x, std::uint64_t row) const;
    colour at(std::uint64_t x, std::uint64_t row) const;
};

struct dib_header {
    std::uint32_t width;
    std::uint32_t height;  ///< of an icon: picture and mask together
    bool top_down;
    std::uint32_t bits;
    std::uint64_t palette_offset;  ///< bytes from the header
    std::uint64_t palette_size;    ///< bytes
};

std::uint32_t pixel_rows::index(std::uint64_t x, std::uint64_t row) const {
    const std::uint64_t bit = x * bits;
    const std::uint32_t byte = bytes.u8(row * pitch + bit / 8);
    return byte >> (8 - bits - bit % 8) &
           ((1u << bits) - 1);  // the leftmost pixel stands in the highest bits
}

colour pixel_rows::at(std::uint64_t x, std::uint64_t row) const {
    const byte_view source =
        bits <= 8 ? palette.part(4ull * index(x, row), 4) : bytes.part(row * pitch + x * bits / 8, bits / 8);
    const auto byte = [&](std::uint64_t offset) { return static_cast<std::uint8_t>(source.u8(offset)); };
    return {byte(0), byte(1), byte(2), bits == 32 ? byte(3) : std::uint8_t{0}};
}

/// Bytes of a row of `width` pixels.
std::uint64_t row_pitch(std::uint32_t width, std::uint32_t bits) {
    return (std::uint64_t{width} * bits + 31) / 32 * 4;
}

/// `dib` begins with the header.
dib_header read_dib_header(byte_view dib) {
    const std::uint32_t header_size = dib.u32(0);
    const std::int32_t width = dib.i32(4);
    const std::int32_t height = dib.i32(8);
    const std::uint32_t bits = dib.u16(14);
    const std::uint32_t colours = dib.u32(32);
    if (header_size < 40) throw damaged_picture("unknown bitmap header");
    if (width <= 0 || height == 0 || height == INT32_MIN) throw damaged_picture("impossible size");
    if (dib.u32(16) != 0) throw damaged_picture("compressed bitmap");
    if (bits != 1 && bits != 4 && bits != 8 && bits != 24 && bits != 32)
        throw damaged_picture("unknown depth");

    const std::uint64_t most = bits <= 8 ? 1u << bits : 0;
    if (bits <= 8 && colours > most) throw damaged_picture("palette too long");
    const std::uint64_t palette_size = 4 * (colours ? std::uint64_t{colours} : most);
    return {static_cast<std::uint32_t>(width),
            static_cast<std::uint32_t>(height < 0 ? -height : height),
            height < 0,
            bits,
            header_size,
            palette_size};
}

/// The `height` rows at `offset` of `dib`.
pixel_rows read_rows(byte_view dib, const dib_header& header, std::uint64_t offset, std::uint32_t height) {
    const std::uint64_t pitch = row_pitch(header.width, header.bits);
    return {dib.part(offset, pitch * height), header.bits, pitch,
            dib.part(header.palette_offset, header.palette_size)};
}

}  // namespace

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
