#include "platform/posix/dib.h"

namespace ox::platform {

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

std::uint64_t row_pitch(std::uint32_t width, std::uint32_t bits) {
    return (std::uint64_t{width} * bits + 31) / 32 * 4;
}

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

pixel_rows read_rows(byte_view dib, const dib_header& header, std::uint64_t offset, std::uint32_t height) {
    const std::uint64_t pitch = row_pitch(header.width, header.bits);
    return {dib.part(offset, pitch * height), header.bits, pitch,
            dib.part(header.palette_offset, header.palette_size)};
}

}  // namespace ox::platform
