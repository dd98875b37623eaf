#include <dlfcn.h>
#include <fcntl.h>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <thread>

#include "oxcheck/system/system.h"
#include "testing/processor_time.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace oxcheck::system {

namespace {

constexpr int cannot_start = 127;

[[noreturn]] void become(const std::vector<fs::path>& arguments, const fs::path& folder,
                         const fs::path& output) {
    const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    if (file < 0 || chdir(folder.c_str()) != 0) _exit(cannot_start);
    dup2(file, STDOUT_FILENO);
    dup2(file, STDERR_FILENO);
    // Freed memory counts as free at once, and holds nothing that could pass for an object.
    setenv("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0:glibc.malloc.perturb=165", 1);
    std::string self = "/proc/self/exe";
    std::vector<char*> values{self.data()};
    std::vector<std::string> texts(arguments.begin(), arguments.end());
    for (std::string& text : texts) values.push_back(text.data());
    values.push_back(nullptr);
    execv(self.c_str(), values.data());
    _exit(cannot_start);
}

ending ending_of(int status) {
    if (WIFSIGNALED(status)) {
        const int number = WTERMSIG(status);
        return {ending::kind::crashed, 0, "signal " + std::to_string(number) + ", " + strsignal(number)};
    }
    return {ending::kind::exited, WEXITSTATUS(status), {}};
}

}  // namespace

std::vector<fs::path> arguments(int count, char** values) { return {values + 1, values + count}; }

struct child::process {
    pid_t id;
    std::optional<ending> end = {};
};

child::child(const std::vector<fs::path>& arguments, const fs::path& folder, const fs::path& output)
    : process_(std::make_unique<process>(process{fork()})) {
    if (process_->id < 0) throw std::runtime_error(std::strerror(errno));
    if (process_->id == 0) become(arguments, folder, output);
}

child::~child() {
    if (process_->end) return;
    kill(process_->id, SIGKILL);
    waitpid(process_->id, nullptr, 0);
}

std::optional<ending> child::wait(std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds step(2);
    for (auto waited = 0 * step;; waited += step) {
        int status = 0;
        if (!process_->end && waitpid(process_->id, &status, WNOHANG) != 0) process_->end = ending_of(status);
        if (process_->end || waited >= patience) return process_->end;
        std::this_thread::sleep_for(step);
    }
}

std::chrono::nanoseconds child::processor_time() const { return processor_time_of(process_->id); }

void crash_quietly() {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
}

void load_host_modules() {}

library::library(const fs::path& file) : handle_(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
    if (!handle_) throw std::runtime_error(dlerror());
}
library::~library() { dlclose(handle_); }
void* library::find(const char* function) const { return dlsym(handle_, function); }

bool is_loaded(const fs::path& file) {
    void* handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (handle) dlclose(handle);
    return handle != nullptr;
}

holdings count_holdings() {
    holdings now;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator("/proc/self/fd")) ++now.handles;
#if defined(__SANITIZE_ADDRESS__)  // its allocator never gives address space back
    now.heap = __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 heap = mallinfo2();
    now.heap = heap.uordblks + heap.hblkhd;
    std::ifstream pages("/proc/self/statm");
    pages >> now.mapped;
    now.mapped *= static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
#endif
    return now;
}

std::size_t kept_by_runtime() {
#if defined(__SANITIZE_ADDRESS__)  // which keeps an account of every destructor that was registered
    return 1024;
#else
    return 0;
#endif
}

}  // namespace oxcheck::system
