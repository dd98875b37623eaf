#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace oxhost::app {

/// Indented; bytes that are no UTF-8, as a foreign file may hold, come out as U+FFFD.
inline std::string json_text(const nlohmann::ordered_json& value) {
    return value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace oxhost::app
