#pragma once
/// Values cross a border by visiting: the receiver lends a visitor, the owner of the value calls it
/// with plain pointers that are valid for that call only. [ui]

#include <cstdint>

#include "border/binding.h"

namespace ox {

struct string_visitor_impl : binding<string_visitor_impl, string_visitor> {
    virtual void visit(const wchar_t* /*text*/) {}
    using table = operations<&string_visitor_impl::visit>;
};

struct integers_visitor_impl : binding<integers_visitor_impl, integers_visitor> {
    virtual void visit(const std::int32_t* /*first*/, std::size_t /*count*/) {}
    using table = operations<&integers_visitor_impl::visit>;
};

struct bigints_visitor_impl : binding<bigints_visitor_impl, bigints_visitor> {
    virtual void visit(const std::int64_t* /*first*/, std::size_t /*count*/) {}
    using table = operations<&bigints_visitor_impl::visit>;
};

struct floatings_visitor_impl : binding<floatings_visitor_impl, floatings_visitor> {
    virtual void visit(const double* /*first*/, std::size_t /*count*/) {}
    using table = operations<&floatings_visitor_impl::visit>;
};

struct short_floatings_visitor_impl : binding<short_floatings_visitor_impl, short_floatings_visitor> {
    virtual void visit(const float* /*first*/, std::size_t /*count*/) {}
    using table = operations<&short_floatings_visitor_impl::visit>;
};

struct histogram_distribution_visitor_impl
    : binding<histogram_distribution_visitor_impl, histogram_distribution_visitor> {
    virtual void visit(custom_pointer /*distribution*/) {}
    using table = operations<&histogram_distribution_visitor_impl::visit>;
};

/// Receives an image: `rows` x `columns` pixels of `channels` (1, 3 or 4: blue, green, red, alpha).
/// Strides are in bytes; a negative row stride means that `data` is the last row in memory.
struct thrice_interleaved_bytes_visitor_impl
    : binding<thrice_interleaved_bytes_visitor_impl, thrice_interleaved_bytes_visitor> {
    virtual void visit(std::int32_t /*rows*/, std::int32_t /*row_stride*/, std::int32_t /*columns*/,
                       std::int32_t /*pixel_stride*/, std::int32_t /*channels*/,
                       std::int32_t /*channel_stride*/, const std::uint8_t* /*data*/) {}
    using table = operations<&thrice_interleaved_bytes_visitor_impl::visit>;
};

/// A picture whose pixels are read when the host asks for them.
struct bitmap_impl : binding<bitmap_impl, bitmap> {
    virtual std::uint32_t width() { return 0; }
    virtual std::uint32_t height() { return 0; }
    virtual void visit_pixels(custom_pointer /*bytes_visitor*/) {}
    using table = operations<&bitmap_impl::width, &bitmap_impl::height, &bitmap_impl::visit_pixels>;
};

/// A picture of three channels with a mask of one.
struct masked_bitmap_impl : binding<masked_bitmap_impl, masked_bitmap> {
    virtual std::uint32_t width() { return 0; }
    virtual std::uint32_t height() { return 0; }
    virtual void visit_colour(custom_pointer /*bytes_visitor*/) {}
    virtual void visit_mask(custom_pointer /*bytes_visitor*/) {}
    using table = operations<&masked_bitmap_impl::width, &masked_bitmap_impl::height,
                             &masked_bitmap_impl::visit_colour, &masked_bitmap_impl::visit_mask>;
};

struct bitmap_visitor_impl : binding<bitmap_visitor_impl, bitmap_visitor> {
    virtual void visit(custom_pointer /*bitmap*/) {}
    using table = operations<&bitmap_visitor_impl::visit>;
};

struct masked_bitmap_visitor_impl : binding<masked_bitmap_visitor_impl, masked_bitmap_visitor> {
    virtual void visit(custom_pointer /*masked_bitmap*/) {}
    using table = operations<&masked_bitmap_visitor_impl::visit>;
};

}  // namespace ox
