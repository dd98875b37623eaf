#pragma once
/// What a bundle's objects hand to visitors, as plain values: texts, and the small pictures of buttons, tools
/// and cells.

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "border/call.h"
#include "border/custom_pointer.h"
#include "border/interfaces/values.h"

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

/// Keeps the last text it was handed.
struct text_reader final : ox::string_visitor_impl {
    std::string text;
    void visit(const wchar_t* handed) override { text = to_utf8(handed); }
};

/// The text that `Operation` of a bundle's object hands to a string visitor, which is its last argument.
template <auto Operation, class... A>
std::string read_utf8(ox::custom_pointer object, A&&... arguments) {
    text_reader reader;
    ox::call<Operation>(object, std::forward<A>(arguments)...,
                        ox::make_pointer<ox::string_visitor_impl>(reader));
    return std::move(reader.text);
}

}  // namespace oxhost::shell
