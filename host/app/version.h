#pragma once

namespace oxhost::app {

inline constexpr auto oxhost_version = OXHOST_VERSION;

}  // namespace oxhost::app
