#pragma once
/// Readers of picture files. Both throw damaged_picture.

#include "platform/platform.h"
#include "platform/posix/byte_view.h"

namespace ox::platform {

/// A .bmp file of any uncompressed depth of 1, 4, 8, 24 or 32 bits.
bitmap_buffer read_bitmap_file(byte_view file);

/// The first image of an .ico or .cur file; it has to be a bitmap.
masked_bitmap_buffer read_icon_file(byte_view file);

}  // namespace ox::platform
