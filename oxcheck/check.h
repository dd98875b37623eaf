#pragma once
/// One named check of a bundle, and how it speaks of what it finds.

#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace oxcheck {

enum class verdict { passed, failed, not_applicable };

/// What a check found. A failed one says what was expected and what came; one that is not applicable says
/// why in `got`.
struct outcome {
    verdict result = verdict::passed;
    std::string expected;
    std::string got;
};

/// What a check is given to work on. Each check runs in a process of its own.
struct subject {
    std::filesystem::path bundle;
    std::filesystem::path output;  ///< whatever this process has printed so far
};

struct check {
    const char* name;   ///< "group.claim"
    const char* claim;  ///< what holds for a good bundle
    void (*run)(const subject&);
};

/// The groups of checks; each lists its own.
std::span<const check> load_checks();
std::span<const check> entry_checks();
std::span<const check> factory_checks();
std::span<const check> pointer_checks();
std::span<const check> referent_checks();
std::span<const check> element_checks();
std::span<const check> coherence_checks();
std::span<const check> notification_checks();
std::span<const check> table_checks();
std::span<const check> element_null_checks();
std::span<const check> text_checks();
std::span<const check> text_null_checks();
std::span<const check> run_checks();
std::span<const check> fault_checks();

/// All of them, in the order in which they are reported.
std::vector<check> all_checks();

/// Thrown by a check that fails.
struct failure : std::runtime_error {
    failure(std::string wanted, const std::string& came)
        : std::runtime_error(came), expected(std::move(wanted)) {}
    std::string expected;
};

/// Thrown by a check to which the bundle gives no occasion.
struct no_occasion : std::runtime_error {
    using std::runtime_error::runtime_error;
};

inline void require(bool holds, const std::string& expected, const std::string& got) {
    if (!holds) throw failure(expected, got);
}

template <class T>
void require_equal(const T& got, const T& expected, const std::string& what) {
    if (!(got == expected)) throw failure(what + " " + std::to_string(expected), std::to_string(got));
}

/// Says what is being done, for the report when the process does not survive it.
void note(const std::string& doing);
const std::string& last_note();

}  // namespace oxcheck
