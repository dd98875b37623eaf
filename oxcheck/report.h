#pragma once
/// How the outcomes are told.

#include <filesystem>
#include <iosfwd>
#include <vector>

#include "oxcheck/check.h"

namespace oxcheck {

struct result {
    check what;
    outcome found;
};

/// One line; a failed check is followed by what was expected and what came.
void print(std::ostream& out, const result& each);
void print_summary(std::ostream& out, const std::vector<result>& results);

/// { "bundle": ..., "passed": n, "failed": n, "not_applicable": n, "checks": [{ "name", "claim", "result",
/// "expected", "got" }] }
void write_json(std::ostream& out, const std::filesystem::path& bundle, const std::vector<result>& results);

}  // namespace oxcheck
