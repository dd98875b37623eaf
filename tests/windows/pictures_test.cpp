// Bitmaps, icons and cursors, as the system reads them.

#include <numeric>

#include "platform/platform.h"
#include "testing/case_name.h"

namespace {

using namespace ox::platform;
using bytes = std::vector<std::uint8_t>;

bytes counting_from(std::uint8_t first, std::size_t count) {
    bytes result(count);
    std::iota(result.begin(), result.end(), first);
    return result;
}

struct bitmap_case {
    const char* name;
    std::uint32_t id;
    std::int32_t width, height;
    bytes pixels;
};

TEST_CASES(Bitmaps, ComeAsFourBytesAPixelBottomRowFirst, bitmap_case,
           {"TrueColour", 205, 3, 2, {1,  2,  3,  0, 4,  5,  6,  0, 7,  8,  9,  0,
                                      10, 11, 12, 0, 13, 14, 15, 0, 16, 17, 18, 0}},
           {"Palette", 206, 2, 1, {0x44, 0x55, 0x66, 0, 0x11, 0x22, 0x33, 0}}) {
    const bitmap_buffer bitmap = load_bitmap(basic_module(), c.id);
    ASSERT_TRUE(bitmap.loaded);
    EXPECT_EQ(bitmap.width, c.width);
    EXPECT_EQ(bitmap.height, c.height);
    ASSERT_EQ(bitmap.size, c.pixels.size());
    EXPECT_EQ(bytes(bitmap.pixels.get(), bitmap.pixels.get() + bitmap.size), c.pixels);
}

/// Picture 202: in row n from the bottom, pixel 7 - n is white, all others are masked.
bytes black_and_white_planes() {
    bytes colour(3 * 64), mask(64, 255);
    for (std::size_t row = 0; row < 8; ++row) {
        const std::size_t white = row * 8 + 7 - row;
        std::fill_n(colour.begin() + static_cast<std::ptrdiff_t>(3 * white), 3, std::uint8_t{255});
        mask[white] = 0;
    }
    colour.insert(colour.end(), mask.begin(), mask.end());
    return colour;
}

bytes true_colour_planes(std::size_t width, std::initializer_list<std::size_t> masked) {
    bytes planes = counting_from(1, 3 * width * width);
    planes.resize(4 * width * width);
    for (const std::size_t pixel : masked) planes[3 * width * width + pixel] = 255;
    return planes;
}

struct icon_case {
    const char* name;
    std::uint32_t id, width, hot_spot_x, hot_spot_y;
    bytes planes;
};

TEST_CASES(Icons, ComeAsColourAndMaskBottomRowFirst, icon_case,
           {"Masked", 201, 3, 1, 1, true_colour_planes(3, {0, 4, 8})},
           {"Monochrome", 202, 8, 4, 4, black_and_white_planes()},
           {"WithAlpha", 203, 2, 1, 1, true_colour_planes(2, {})},
           {"Cursor", 204, 8, 5, 6, black_and_white_planes()}) {
    const masked_bitmap_buffer icon = load_masked_bitmap(basic_module(), c.id);
    ASSERT_TRUE(icon.loaded);
    EXPECT_EQ(icon.width, c.width);
    EXPECT_EQ(icon.height, c.width);
    EXPECT_EQ(icon.mask_offset, 3 * c.width * c.width);
    EXPECT_EQ(icon.hot_spot_x, c.hot_spot_x);
    EXPECT_EQ(icon.hot_spot_y, c.hot_spot_y);
    ASSERT_EQ(icon.size, c.planes.size());
    EXPECT_EQ(bytes(icon.pixels.get(), icon.pixels.get() + icon.size), c.planes);
}

TEST(Pictures, ThatAreMissingAreEmpty) {
    EXPECT_EQ(load_bitmap(own_module(), 66).size, 1024u);
    EXPECT_FALSE(load_bitmap(own_module(), 67).pixels);
    EXPECT_FALSE(load_bitmap(basic_module(), 201).pixels);
    EXPECT_FALSE(load_masked_bitmap(basic_module(), 205).pixels);
    EXPECT_FALSE(load_masked_bitmap(nullptr, 201).pixels);
}

}  // namespace
