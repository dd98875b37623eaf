#pragma once
/// Reading the pixels of a GDI bitmap in a wanted depth.

#include "platform/windows/win32.h"

namespace ox::platform {

/// Bitmap header with room for the palette that GetDIBits writes after it for up to 8 bits per pixel.
struct dib_header {
    BITMAPINFOHEADER info{};
    RGBQUAD palette[256]{};

    BITMAPINFO* pointer() { return reinterpret_cast<BITMAPINFO*>(this); }
};

/// Header of `bitmap`, its height made positive; all zero when it cannot be read.
dib_header read_header(HDC context, HBITMAP bitmap);

/// Reads up to `count` rows from `first`, counted from the bottom, at `bits` per pixel into `out`, row
/// after row without padding. False when nothing could be read.
bool read_rows(HDC context, HBITMAP bitmap, const dib_header& header, WORD bits, std::uint32_t first,
               std::uint32_t count, std::uint8_t* out);

}  // namespace ox::platform
