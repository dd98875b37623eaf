#include "platform/windows/dib.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace ox::platform {

dib_header read_header(HDC context, HBITMAP bitmap) {
    dib_header header;
    header.info.biSize = sizeof(header.info);
    if (!GetDIBits(context, bitmap, 0, 0, nullptr, header.pointer(), DIB_RGB_COLORS)) return {};
    header.info.biHeight = std::abs(header.info.biHeight);
    return header;
}

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

}  // namespace ox::platform
