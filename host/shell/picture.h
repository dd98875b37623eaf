#pragma once
/// Small pictures of a bundle: icons of buttons, tools and cells.

#include <cstdint>
#include <functional>
#include <vector>

#include "border/custom_pointer.h"

namespace oxhost::shell {

/// Rows from the top, 4 bytes a pixel: red, green, blue, alpha.
struct picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;

    bool empty() const { return rgba.empty(); }
};

/// The picture whose bitmap `visit` hands to the bitmap visitor it is given; empty when it hands over none.
picture read_picture(const std::function<void(ox::custom_pointer bitmap_visitor)>& visit);

}  // namespace oxhost::shell
