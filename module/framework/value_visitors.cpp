#include "framework/value_visitors.h"

#include <algorithm>
#include <array>
#include <vector>

#include "border/call.h"

namespace ox::detail {

void key_visitor::visit(std::int32_t rows, std::int32_t row_stride, std::int32_t columns,
                        std::int32_t pixel_stride, std::int32_t channels, std::int32_t channel_stride,
                        const std::uint8_t* data) {
    constexpr auto deliver = &thrice_interleaved_bytes_visitor_impl::visit;
    if (!data) return;
    if (channels != 1 && channels != 3) {
        call<deliver>(wrapped_, rows, row_stride, columns, pixel_stride, channels, channel_stride, data);
        return;
    }
    if (!wrapped_ || rows <= 0 || columns <= 0) return;

    using colour = std::array<std::uint8_t, 3>;
    const auto pixel = [&](std::ptrdiff_t row, std::ptrdiff_t column) {
        const std::uint8_t* at = data + row * row_stride + column * pixel_stride;
        return channels == 1 ? colour{at[0], at[0], at[0]}
                             : colour{at[0], at[channel_stride], at[2 * std::ptrdiff_t{channel_stride}]};
    };
    const colour key = pixel(rows - 1, 0);
    std::vector<std::uint8_t> keyed(std::size_t{4} * static_cast<std::size_t>(rows) *
                                    static_cast<std::size_t>(columns));
    auto out = keyed.begin();
    for (std::int32_t row = 0; row < rows; ++row)
        for (std::int32_t column = 0; column < columns; ++column, out += 4)
            if (const colour c = pixel(row, column); c != key) {
                std::ranges::copy(c, out);
                out[3] = 255;
            }
    call<deliver>(wrapped_, rows, 4 * columns, columns, 4, 4, 1, keyed.data());
}

}  // namespace ox::detail
