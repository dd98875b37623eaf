// Bitmaps, icons and cursors, as GDI reads them.

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "platform/windows/win32.h"

namespace ox::platform {
namespace {

/// Bitmap header with room for the palette that GetDIBits writes after it for up to 8 bits per pixel.
struct dib_header {
    BITMAPINFOHEADER info{};
    RGBQUAD palette[256]{};

    BITMAPINFO* pointer() { return reinterpret_cast<BITMAPINFO*>(this); }
};

/// Header of `bitmap`, its height made positive; all zero when it cannot be read.
dib_header read_header(HDC context, HBITMAP bitmap) {
    dib_header header;
    header.info.biSize = sizeof(header.info);
    if (!GetDIBits(context, bitmap, 0, 0, nullptr, header.pointer(), DIB_RGB_COLORS)) return {};
    header.info.biHeight = std::abs(header.info.biHeight);
    return header;
}

/// Reads up to `count` rows from `first`, counted from the bottom, at `bits` per pixel into `out`, row
/// after row without padding. False when nothing could be read.
bool read_rows(HDC context, HBITMAP bitmap, const dib_header& header, WORD bits, std::uint32_t first,
               std::uint32_t count, std::uint8_t* out) {
    dib_header wanted = header;
    wanted.info.biPlanes = 1;
    wanted.info.biBitCount = bits;
    wanted.info.biCompression = BI_RGB;
    wanted.info.biClrUsed = wanted.info.biClrImportant = 0;

    const std::size_t row = static_cast<std::size_t>(header.info.biWidth) * bits / 8;
    const std::size_t padded = (row + 3) / 4 * 4;
    std::vector<std::uint8_t> spare(padded == row ? 0 : padded * count);
    std::uint8_t* const rows = spare.empty() ? out : spare.data();
    const int read = GetDIBits(context, bitmap, first, count, rows, wanted.pointer(), DIB_RGB_COLORS);
    if (read <= 0) return false;
    if (!spare.empty())
        for (std::size_t y = 0; y < count; ++y) std::copy_n(rows + y * padded, row, out + y * row);
    return true;
}

HICON load_icon(HMODULE module, std::uint32_t id) {
    void* icon = LoadImageW(module, numbered(id), IMAGE_ICON, 0, 0, 0);
    if (!icon) icon = LoadImageW(module, numbered(id), IMAGE_CURSOR, 0, 0, 0);
    return static_cast<HICON>(icon);
}

/// Pixel memory whose size the result states in 32 bits; null beyond that.
pixel_memory allocate_four_bytes_each(std::uint64_t pixels) {
    return 4 * pixels <= UINT32_MAX ? allocate_pixels(static_cast<std::size_t>(4 * pixels)) : nullptr;
}

}  // namespace

bitmap_buffer load_bitmap(resource_module module, std::uint32_t id) {
    if (!module) return {};
    const owned<HBITMAP> bitmap(static_cast<HBITMAP>(
        LoadImageW(as_handle(module), numbered(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!bitmap) return {};
    const owned<HDC> context(CreateCompatibleDC(nullptr));
    const dib_header header = read_header(context.get(), bitmap.get());
    if (header.info.biWidth <= 0) return {};

    bitmap_buffer result;
    result.width = header.info.biWidth;
    result.height = header.info.biHeight;
    const auto pixels = static_cast<std::uint64_t>(std::int64_t{result.width} * result.height);
    result.pixels = allocate_four_bytes_each(pixels);
    if (!result.pixels) return {};
    result.size = static_cast<std::uint32_t>(4 * pixels);
    result.loaded = read_rows(context.get(), bitmap.get(), header, 32, 0,
                              static_cast<std::uint32_t>(result.height), result.pixels.get());
    return result;
}

masked_bitmap_buffer load_masked_bitmap(resource_module module, std::uint32_t id) {
    if (!module) return {};
    const owned<HICON> icon(load_icon(as_handle(module), id));
    if (!icon) return {};
    const owned<HDC> context(CreateCompatibleDC(nullptr));
    ICONINFO parts{};
    if (!GetIconInfo(icon.get(), &parts)) return {};
    const owned<HBITMAP> mask(parts.hbmMask), colour(parts.hbmColor);
    const dib_header header = read_header(context.get(), mask.get());
    if (header.info.biWidth <= 0) return {};

    const auto width = static_cast<std::uint32_t>(header.info.biWidth);
    const std::uint64_t plane = std::uint64_t{width} * width;
    masked_bitmap_buffer result;
    result.pixels = allocate_four_bytes_each(plane);
    if (!result.pixels) return {};
    result.hot_spot_x = parts.xHotspot;
    result.hot_spot_y = parts.yHotspot;
    result.width = result.height = width;
    result.size = static_cast<std::uint32_t>(4 * plane);
    result.mask_offset = static_cast<std::uint32_t>(3 * plane);

    // A monochrome icon has no colour bitmap: its mask bitmap holds the mask above the picture, so that
    // from the bottom the picture's rows come first.
    std::uint8_t* const pixels = result.pixels.get();
    const bool has_colour =
        read_rows(context.get(), colour ? colour.get() : mask.get(), header, 24, 0, width, pixels);
    const bool has_mask = read_rows(context.get(), mask.get(), header, 8, colour ? 0 : width, width,
                                    pixels + result.mask_offset);
    result.loaded = has_colour || has_mask;
    return result;
}

}  // namespace ox::platform
