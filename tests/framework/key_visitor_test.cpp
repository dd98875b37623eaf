// Colour-keyed images become images with alpha.

#include <vector>

#include "border/call.h"
#include "framework/value_visitors.h"
#include "testing/case_name.h"

namespace ox {
namespace {

using bytes = std::vector<std::uint8_t>;

struct image_sink : thrice_interleaved_bytes_visitor_impl {
    int calls = 0;
    std::int32_t row_stride = 0, channels = 0;
    bytes pixels;
    void visit(std::int32_t rows, std::int32_t stride, std::int32_t columns, std::int32_t pixel_stride,
               std::int32_t channel_count, std::int32_t, const std::uint8_t* data) override {
        ++calls;
        row_stride = stride;
        channels = channel_count;
        for (std::int32_t row = 0; row < rows; ++row)
            pixels.insert(pixels.end(), data + row * stride, data + row * stride + columns * pixel_stride);
    }
};

struct key_case {
    const char* name;
    std::int32_t row_stride, channels;
    bytes memory;
    std::size_t first_row;  ///< offset of the first row in memory
    bytes expected;
};

// Two rows of one pixel; the key is the first pixel of the last row.
TEST_CASES(KeyVisitor, Converts, key_case,
           {"ThreeChannelsTopDown", 3, 3, {1, 2, 3, 9, 8, 7}, 0, {1, 2, 3, 255, 0, 0, 0, 0}},
           {"ThreeChannelsBottomUp", -3, 3, {9, 8, 7, 1, 2, 3}, 3, {1, 2, 3, 255, 0, 0, 0, 0}},
           {"AllOfTheKeyColour", 3, 3, {5, 5, 5, 5, 5, 5}, 0, {0, 0, 0, 0, 0, 0, 0, 0}},
           {"Grey", 1, 1, {7, 9}, 0, {7, 7, 7, 255, 0, 0, 0, 0}},
           {"FourChannelsPass", 4, 4, {1, 2, 3, 4, 1, 2, 3, 4}, 0, {1, 2, 3, 4, 1, 2, 3, 4}}) {
    image_sink sink;
    detail::key_visitor keyed(make_pointer<thrice_interleaved_bytes_visitor_impl>(sink));
    keyed.visit(2, c.row_stride, 1, c.channels, c.channels, 1, c.memory.data() + c.first_row);
    EXPECT_EQ(sink.calls, 1);
    EXPECT_EQ(sink.channels, 4);
    EXPECT_EQ(sink.pixels, c.expected);
}

TEST(KeyVisitorOutside, AnImageWithoutDataIsNone) {
    image_sink sink;
    detail::key_visitor visitor(make_pointer<thrice_interleaved_bytes_visitor_impl>(sink));
    visitor.visit(2, 6, 2, 3, 3, 1, nullptr);
    EXPECT_EQ(sink.calls, 0);
}

}  // namespace
}  // namespace ox
