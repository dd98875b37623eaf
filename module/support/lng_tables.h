#pragma once
/// Built-in texts of the support layer in English (ASCII) and Russian (code page 1251), by group and
/// index. The user's language is asked from the host once, at the first look-up. [ui]

#include <cstdint>

namespace ox {

inline constexpr std::uint32_t lng_group_outcomes = 0;  ///< done, user stop, error, load from, save to
inline constexpr std::uint32_t lng_group_files = 10;    ///< messages with one argument each

/// The text, or "unknown str" where there is none. It lives until the next look-up.
const char* lng_text(std::uint32_t group, std::int32_t index);

/// Asks the host for the language unless that was done: its code 0 is Russian.
void lng_init();

/// 1 Russian, 0 English. Does not count as asking the host: the first look-up after it still does, and
/// overrules it.
void lng_set(std::uint32_t flag);

}  // namespace ox
