#pragma once
/// Device-independent bitmap: the header, palette and rows that .bmp and .ico files share.

#include "platform/posix/byte_view.h"

namespace ox::platform {

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

/// Bytes of a row of `width` pixels.
std::uint64_t row_pitch(std::uint32_t width, std::uint32_t bits);

/// `dib` begins with the header. Throws damaged_picture.
dib_header read_dib_header(byte_view dib);

/// The `height` rows at `offset` of `dib`.
pixel_rows read_rows(byte_view dib, const dib_header& header, std::uint64_t offset, std::uint32_t height);

}  // namespace ox::platform
