#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The texts between the bars of "one|two|three".
inline std::vector<std::string> pieces(std::string_view text) {
    std::vector<std::string> found{""};
    for (const char c : text) c == '|' ? (void)found.emplace_back() : found.back().push_back(c);
    return found;
}
