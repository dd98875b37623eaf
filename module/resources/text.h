#pragma once
/// Ids of the module's texts, by name. Positive ids are this module's; the host's own basic texts and
/// pictures stand under negative ids.

#include <cstdint>

namespace ox::text {

enum : std::int32_t {
    none = 0,
#define OX_TEXT(symbol, id, russian, english) symbol = id,
#include "resources/texts.inc"
#undef OX_TEXT
};

/// The English text of an id stands this much higher in the string table.
inline constexpr std::int32_t english_offset = 50000;

}  // namespace ox::text

namespace ox::basic_text {

/// Texts of the host's basic module.
enum : std::int32_t {
    yes = -99,
    no = -100,
    accept = -101,
    close = -102,
    help = -103,
    suggestions = -6214,
    no_projection = -6215,
    projection_dialog = -6216,
};

}  // namespace ox::basic_text

namespace ox::picture {

enum : std::int32_t {
    none = 0,
    favourite = 66,
    append = -71,
    remove = -72,
    select_all = -118,
    clear_selection = -119,
    invert_selection = -120,
};

}  // namespace ox::picture
