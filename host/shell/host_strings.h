#pragma once
/// The host's own strings, as its basic module carries them for bundles too.

#include <cstdint>
#include <string>

namespace oxhost::shell {

/// Captions of standard buttons.
namespace host_string {
inline constexpr std::uint32_t yes = 99, no = 100, apply = 101, close = 102, help = 103;
inline constexpr std::uint32_t choose = 6214, projection = 6216;
}  // namespace host_string

/// In the current language; empty when the table lacks it.
std::string text_of(std::uint32_t host_string_id);

}  // namespace oxhost::shell
