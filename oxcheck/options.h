#pragma once
/// The command line of oxcheck.

#include <chrono>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace oxcheck {

struct usage_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct options {
    std::filesystem::path bundle;
    std::optional<std::filesystem::path> json;
    std::vector<std::string> only;  ///< names of checks or groups; empty is all
    std::chrono::milliseconds limit{20000};
    bool list = false;
    bool help = false;
};

inline constexpr const char* usage_text =
    "usage: oxcheck BUNDLE [--json FILE] [--only NAME]... [--seconds N]\n"
    "       oxcheck --list\n"
    "Checks the binary contract of a bundle. NAME is a check or a group of checks, as --list shows\n"
    "them; N is the processor time that each check may take, and how long it may stand still. Exit codes: 0 nothing failed, 1 a check failed,\n"
    "64 wrong usage, 66 the bundle cannot be read.\n";

/// Throws `usage_error`.
options parse_options(const std::vector<std::filesystem::path>& arguments);

}  // namespace oxcheck
