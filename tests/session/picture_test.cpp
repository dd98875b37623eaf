#include "picture_builder.h"
#include "platform/posix/picture_files.h"
#include "testing/case_name.h"

namespace {

using ox::platform::byte_view;
using ox::platform::damaged_picture;
using ox::platform::read_bitmap_file;
using ox::platform::read_icon_file;

using picture_case = case_of<file_bytes>;  // expected: 4 bytes a pixel; of an icon 3 each, then the mask

template <class Buffer>
file_bytes pixels_of(const Buffer& buffer) {
    return {buffer.pixels.get(), buffer.pixels.get() + buffer.size};
}

const std::vector<std::uint32_t> two{0x00112233, 0x00445566};  // red, green, blue from the high end
const file_bytes first{0x33, 0x22, 0x11, 0}, second{0x66, 0x55, 0x44, 0};

file_bytes joined(const std::vector<file_bytes>& parts) {
    file_bytes out;
    for (const auto& part : parts) out.insert(out.end(), part.begin(), part.end());
    return out;
}

TEST_CASES(Bitmaps, ComeBottomRowFirst, picture_case,
           {"OneBit", bmp(3, 1, 1, two, {0b01000000, 0, 0, 0}), joined({first, second, first})},
           {"FourBits", bmp(3, 1, 4, two, {0x10, 0x10, 0, 0}), joined({second, first, second})},
           {"EightBitsBottomUp", bmp(1, 2, 8, two, {0, 9, 9, 9, 1, 9, 9, 9}), joined({first, second})},
           {"EightBitsTopDown", bmp(1, -2, 8, two, {1, 9, 9, 9, 0, 9, 9, 9}), joined({first, second})},
           {"TwentyFourBits", bmp(1, 2, 24, {}, {1, 2, 3, 9, 4, 5, 6, 9}), {1, 2, 3, 0, 4, 5, 6, 0}},
           {"ThirtyTwoBits", bmp(2, 1, 32, {}, {1, 2, 3, 4, 5, 6, 7, 8}), {1, 2, 3, 4, 5, 6, 7, 8}}) {
    const auto buffer = read_bitmap_file(byte_view(c.given));
    EXPECT_TRUE(buffer.loaded);
    EXPECT_GT(buffer.height, 0);
    EXPECT_EQ(pixels_of(buffer), c.expected);
}

const file_bytes diagonal_mask{0x80, 0, 0, 0, 0x40, 0, 0, 0};

TEST_CASES(Icons, ComeAsColourPlaneAndMaskPlane, picture_case,
           {"Monochrome", ico(2, 1, {0, 0xFFFFFF}, joined({{0x40, 0, 0, 0, 0xC0, 0, 0, 0}, diagonal_mask})),
            joined({{0, 0, 0}, file_bytes(9, 255), {255, 0, 0, 255}})},
           {"TrueColour",
            ico(2, 24, {}, joined({{1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0}, diagonal_mask})),
            {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 255, 0, 0, 255}},
           {"WithAlpha",
            ico(2, 32, {}, joined({{1, 2, 3, 255, 4, 5, 6, 255, 7, 8, 9, 0, 10, 11, 12, 0}, diagonal_mask})),
            {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 255, 0, 0, 255}}) {
    const auto buffer = read_icon_file(byte_view(c.given));
    EXPECT_TRUE(buffer.loaded);
    EXPECT_EQ(buffer.width, 2u);
    EXPECT_EQ(buffer.mask_offset, 12u);
    EXPECT_EQ(buffer.hot_spot_x, 1u);
    EXPECT_EQ(pixels_of(buffer), c.expected);
}

TEST(DamagedPictures, AreRefused) {
    for (const damage how :
         {damage::cut_short, damage::compressed, damage::no_width, damage::huge, damage::odd_depth,
          damage::long_palette, damage::pixels_in_header, damage::bad_magic}) {
        EXPECT_THROW(read_bitmap_file(byte_view(bmp(1, 1, 1, two, {0, 0, 0, 0}, how))), damaged_picture)
            << static_cast<int>(how);
        EXPECT_THROW(read_icon_file(byte_view(ico(1, 1, two, {0, 0, 0, 0, 0, 0, 0, 0}, how))),
                     damaged_picture)
            << static_cast<int>(how);
    }
    EXPECT_THROW(read_bitmap_file(byte_view(bmp(1, 1, 8, two, {2, 0, 0, 0}))), damaged_picture)
        << "a colour outside the palette";
}

TEST(DamagedPictures, EveryPrefixOfAFileIsRefusedWithoutACrash) {
    const file_bytes icon = ico(1, 4, two, {0, 0, 0, 0, 0, 0, 0, 0});
    for (std::size_t size = 0; size < icon.size(); ++size) {
        const file_bytes prefix(icon.begin(), icon.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_THROW(read_icon_file(byte_view(prefix)), damaged_picture) << size;
    }
}

}  // namespace
