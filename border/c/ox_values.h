#pragma once
/// Values cross the border by visiting: who wants a text, picture or list lends a visitor, and the owner of
/// the value calls its slot 1 with plain pointers that are [lent for the call]. A visitor that is not called
/// means that there is no value. The value's owner calls no visitor after the call it was lent for.

#include <stdint.h>

#include "ox_pointer.h"

#define OX_STRING_VISITOR_INTERFACE "ox_string_visitor_interface_0"
#define OX_INTEGERS_VISITOR_INTERFACE "ox_integers_visitor_interface_1"
#define OX_BIGINTS_VISITOR_INTERFACE "ox_bigints_visitor_interface_0"
#define OX_FLOATINGS_VISITOR_INTERFACE "ox_floatings_visitor_interface_1"
#define OX_SHORT_FLOATINGS_VISITOR_INTERFACE "ox_short_floatings_visitor_interface_1"
#define OX_HISTOGRAM_DISTRIBUTION_VISITOR_INTERFACE "ox_histogram_distribution_visitor_interface_1"
#define OX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE "ox_thrice_interleaved_bytes_visitor_interface_0"
#define OX_BITMAP_INTERFACE "ox_bitmap_interface_0"
#define OX_BITMAP_VISITOR_INTERFACE "ox_bitmap_visitor_interface_0"
#define OX_MASKED_BITMAP_INTERFACE "ox_masked_bitmap_interface_0"
#define OX_MASKED_BITMAP_VISITOR_INTERFACE "ox_masked_bitmap_visitor_interface_0"

/// [host implements] [bundle implements]
struct ox_string_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// `text` ends with a NUL; wchar_t has 16 bits on Windows and 32 elsewhere.
    void (*visit)(const void* table, void* object, const wchar_t* text);
};

// ---- Lists of numbers: part of the vocabulary, called by no operation of these headers --------------------

struct ox_integers_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, const int32_t* first, size_t count);
};

struct ox_bigints_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, const int64_t* first, size_t count);
};

struct ox_floatings_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, const double* first, size_t count);
};

struct ox_short_floatings_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, const float* first, size_t count);
};

struct ox_histogram_distribution_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer distribution);
};

// ---- Pictures ---------------------------------------------------------------------------------------------

/// Receives the pixels of a picture. [host implements] [bundle implements]
struct ox_thrice_interleaved_bytes_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// `rows` x `columns` pixels of `channels` bytes: 1 (grey or mask), 3 (blue, green, red) or 4 (and
    /// alpha). Strides are in bytes, from one row, pixel or channel to the next; `data` is the first channel
    /// of the first pixel of the first row. A negative `row_stride` belongs to a picture that is stored
    /// bottom row first: `data` then lies in the last row in memory. Usual are a pixel stride of 4 and a
    /// channel stride of 1.
    void (*visit)(const void* table, void* object, int32_t rows, int32_t row_stride, int32_t columns,
                  int32_t pixel_stride, int32_t channels, int32_t channel_stride, const uint8_t* data);
};

/// A picture whose pixels are read when somebody asks for them. Handed to a bitmap visitor and
/// [lent for the call]. [bundle implements]
struct ox_bitmap_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Size as its owner declares it, in pixels; the pixels themselves have the last word.
    uint32_t (*width)(const void* table, void* object);
    uint32_t (*height)(const void* table, void* object);
    /// Not visited when the picture cannot be loaded.
    void (*visit_pixels)(const void* table, void* object, ox_pointer thrice_interleaved_bytes_visitor);
};

/// [host implements]
struct ox_bitmap_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer bitmap);
};

/// A square picture of three channels with a mask of one. [host implements] [bundle implements]
struct ox_masked_bitmap_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    uint32_t (*width)(const void* table, void* object);
    uint32_t (*height)(const void* table, void* object);
    /// Three channels.
    void (*visit_colour)(const void* table, void* object, ox_pointer thrice_interleaved_bytes_visitor);
    /// One channel.
    void (*visit_mask)(const void* table, void* object, ox_pointer thrice_interleaved_bytes_visitor);
};

/// [host implements] [bundle implements]
struct ox_masked_bitmap_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer masked_bitmap);
};
