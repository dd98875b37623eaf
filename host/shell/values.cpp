#include "shell/values.h"

#include "border/call.h"
#include "border/interfaces/values.h"

namespace oxhost::shell {

namespace {

constexpr std::int32_t largest_side = 4096;

struct pixel_reader final : ox::thrice_interleaved_bytes_visitor_impl {
    void visit(std::int32_t rows, std::int32_t row_stride, std::int32_t columns, std::int32_t pixel_stride,
               std::int32_t channels, std::int32_t channel_stride, const std::uint8_t* data) override {
        const bool usual = channels == 1 || channels == 3 || channels == 4;
        if (!data || !usual || rows <= 0 || columns <= 0 || rows > largest_side || columns > largest_side)
            return;
        read = {columns, rows, {}};
        read.rgba.reserve(std::size_t{4} * static_cast<std::size_t>(rows) *
                          static_cast<std::size_t>(columns));
        for (std::ptrdiff_t row = 0; row < rows; ++row)
            for (std::ptrdiff_t column = 0; column < columns; ++column) {
                const std::uint8_t* pixel = data + row * row_stride + column * pixel_stride;
                const auto channel = [&](std::ptrdiff_t n) { return pixel[n * channel_stride]; };
                const std::ptrdiff_t last = channels == 1 ? 0 : 2;  // blue comes first
                read.rgba.push_back(channel(last));
                read.rgba.push_back(channel(last / 2));
                read.rgba.push_back(channel(0));
                read.rgba.push_back(channels == 4 ? channel(3) : 255);
            }
    }
    picture read;
};

struct bitmap_reader final : ox::bitmap_visitor_impl {
    void visit(ox::custom_pointer bitmap) override {
        ox::call<&ox::bitmap_impl::visit_pixels>(
            bitmap, ox::make_pointer<ox::thrice_interleaved_bytes_visitor_impl>(pixels));
    }
    pixel_reader pixels;
};

}  // namespace

picture read_picture(const std::function<void(ox::custom_pointer)>& visit) {
    bitmap_reader reader;
    visit(ox::make_pointer<ox::bitmap_visitor_impl>(reader));
    return std::move(reader.pixels.read);
}

}  // namespace oxhost::shell
