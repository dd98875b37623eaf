#pragma once
/// Builds .bmp and .ico files, whole or damaged in a named way.

#include <cstdint>
#include <string>
#include <vector>

enum class damage {
    none,
    cut_short,
    compressed,
    no_width,
    huge,
    odd_depth,
    long_palette,
    pixels_in_header,
    bad_magic
};

using file_bytes = std::vector<std::uint8_t>;

/// Numbers of so many bytes each.
inline void put(file_bytes& file, int bytes, std::initializer_list<std::uint32_t> values) {
    for (const std::uint32_t value : values)
        for (int i = 0; i < bytes; ++i) file.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

/// Header and palette of a picture; `rows` are its padded rows as they stand in the file.
inline file_bytes dib(std::int32_t width, std::int32_t height, std::uint32_t bits,
                      const std::vector<std::uint32_t>& palette, const file_bytes& rows, damage how) {
    const bool huge = how == damage::huge;
    const auto colours = static_cast<std::uint32_t>(palette.size());
    file_bytes out;
    put(out, 4,
        {40,
         how == damage::no_width ? 0
         : huge                  ? 0x7FFFFFFF
                                 : static_cast<std::uint32_t>(width),
         huge ? 0x7FFFFFFE : static_cast<std::uint32_t>(height)});
    put(out, 2, {1, how == damage::odd_depth ? 7 : bits});
    put(out, 4, {how == damage::compressed, 0, 0, 0, how == damage::long_palette ? 0x80000000 : colours, 0});
    for (const std::uint32_t colour : palette) put(out, 4, {colour});
    out.insert(out.end(), rows.begin(), rows.end());
    if (how == damage::cut_short) out.pop_back();
    return out;
}

inline file_bytes bmp(std::int32_t width, std::int32_t height, std::uint32_t bits,
                      const std::vector<std::uint32_t>& palette, const file_bytes& rows,
                      damage how = damage::none) {
    const file_bytes body = dib(width, height, bits, palette, rows, how);
    const auto offset = static_cast<std::uint32_t>(14 + 40 + 4 * palette.size());
    file_bytes out{'B', static_cast<std::uint8_t>(how == damage::bad_magic ? 'A' : 'M')};
    put(out, 4,
        {offset + static_cast<std::uint32_t>(rows.size()), 0, how == damage::pixels_in_header ? 3 : offset});
    out.insert(out.end(), body.begin(), body.end());
    return out;
}

/// `rows`: those of the colours, then those of the mask, each from the bottom up.
inline file_bytes ico(std::int32_t width, std::uint32_t bits, const std::vector<std::uint32_t>& palette,
                      const file_bytes& rows, damage how = damage::none) {
    const file_bytes body = dib(width, 2 * width, bits, palette, rows, how);
    file_bytes out;
    put(out, 2, {0, how == damage::bad_magic ? 9u : 1u, 1});
    put(out, 4, {static_cast<std::uint32_t>(width) * 0x101});  // width, height, no colour count
    put(out, 2, {1, bits});
    put(out, 4, {static_cast<std::uint32_t>(body.size()), how == damage::pixels_in_header ? 0xFFFFFFF0 : 22});
    out.insert(out.end(), body.begin(), body.end());
    return out;
}
