#pragma once
/// Readers of picture files, which may be damaged.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>

#include "platform/platform.h"

namespace ox::platform {

/// The picture file is damaged or of a kind that is not read here.
struct damaged_picture : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Bounds-checked reading of a little-endian file image.
class byte_view {
public:
    explicit byte_view(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    /// The one check through which all reads go.
    byte_view part(std::uint64_t offset, std::uint64_t size) const {
        if (offset > bytes_.size() || size > bytes_.size() - offset)
            throw damaged_picture("picture cut short");
        return byte_view(bytes_.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(size)));
    }
    byte_view from(std::uint64_t offset) const {
        return part(offset, bytes_.size() - std::min<std::uint64_t>(offset, bytes_.size()));
    }

    std::uint32_t u8(std::uint64_t offset) const { return part(offset, 1).bytes_[0]; }
    std::uint32_t u16(std::uint64_t offset) const { return u8(offset) | u8(offset + 1) << 8; }
    std::uint32_t u32(std::uint64_t offset) const { return u16(offset) | u16(offset + 2) << 16; }
    std::int32_t i32(std::uint64_t offset) const { return static_cast<std::int32_t>(u32(offset)); }

private:
    std::span<const std::uint8_t> bytes_;
};

/// A .bmp file of any uncompressed depth of 1, 4, 8, 24 or 32 bits. Throws damaged_picture.
bitmap_buffer read_bitmap_file(byte_view file);

/// The first image of an .ico or .cur file; it has to be a bitmap. Throws damaged_picture.
masked_bitmap_buffer read_icon_file(byte_view file);

}  // namespace ox::platform
