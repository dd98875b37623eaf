#pragma once
/// How a run ends that cannot go on, or cannot begin.

#include <stdexcept>
#include <string>

namespace oxhost::run {

enum class trouble {
    unreadable,  ///< a file that is to be read
    refused,     ///< settings that do not work, or an output that cannot be written
};

/// One line for the user.
struct failure : std::runtime_error {
    failure(trouble of_what, const std::string& line) : std::runtime_error(line), kind(of_what) {}
    trouble kind;
};

}  // namespace oxhost::run
