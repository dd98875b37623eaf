#pragma once
/// All that the checker asks of the operating system.

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace oxcheck::system {

namespace fs = std::filesystem;

/// The command line, the program's own name left out.
std::vector<fs::path> arguments(int count, char** values);

/// How a child process ended.
struct ending {
    enum class kind { exited, crashed } how;
    int code = 0;             ///< of `exited`
    std::string description;  ///< of `crashed`
};

/// This program, run anew with other arguments, its working folder and everything it prints redirected.
class child {
public:
    /// Throws std::runtime_error when it cannot be started.
    child(const std::vector<fs::path>& arguments, const fs::path& folder, const fs::path& output);
    ~child();  ///< ends it
    child(const child&) = delete;
    child& operator=(const child&) = delete;

    /// Waits for its end, but not longer than `patience`; nothing while it runs.
    std::optional<ending> wait(std::chrono::milliseconds patience);
    /// What it has used so far.
    std::chrono::nanoseconds processor_time() const;

private:
    struct process;
    std::unique_ptr<process> process_;
};

/// Of a process that crashes: no dialog, no core file.
void crash_quietly();

/// Loads the host's modules that lie beside this program; they stay, as they do in a host. Where they are
/// linked in, nothing.
void load_host_modules();

/// A loaded library; unloaded when it ends.
class library {
public:
    explicit library(const fs::path& file);  ///< throws std::runtime_error with the loader's words
    ~library();
    library(const library&) = delete;
    library& operator=(const library&) = delete;

    void* find(const char* function) const;  ///< null when it is not exported

private:
    void* handle_;
};

/// Whether the file is mapped as a library of this process.
bool is_loaded(const fs::path& file);

/// What this process holds.
struct holdings {
    std::size_t handles = 0;  ///< files and other kernel objects
    std::size_t heap = 0;     ///< bytes allocated
    std::size_t mapped = 0;   ///< bytes of address space
    std::size_t windows = 0;
};
holdings count_holdings();

/// Bytes of the heap that a good library may leave behind each time, because the runtime keeps accounts: of
/// threads, where it is linked into the library itself.
std::size_t kept_by_runtime();

}  // namespace oxcheck::system
