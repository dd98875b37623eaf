#include <cwchar>
#include <stdexcept>

#include "oxcheck/system/system.h"
#include "testing/processor_time.h"

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <psapi.h>
#include <shellapi.h>

namespace oxcheck::system {

namespace {

/// A kernel object; closed when it ends.
class handle {
public:
    explicit handle(HANDLE value) : value_(value) {}
    ~handle() {
        if (*this) CloseHandle(value_);
    }
    handle(const handle&) = delete;
    handle& operator=(const handle&) = delete;
    explicit operator bool() const { return value_ && value_ != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return value_; }

private:
    HANDLE value_;
};

std::string hexadecimal(DWORD number) {
    std::string digits;
    for (int shift = 28; shift >= 0; shift -= 4) digits += "0123456789ABCDEF"[(number >> shift) & 15];
    return "0x" + digits;
}

std::wstring own_file() {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

/// As CommandLineToArgvW takes it apart. No argument here ends in a backslash or holds a quote.
std::wstring command_line(const std::vector<fs::path>& arguments) {
    std::wstring line = L"\"" + own_file() + L"\"";
    for (const fs::path& argument : arguments) line += L" \"" + argument.wstring() + L"\"";
    return line;
}

handle inheritable_file(const fs::path& path) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return handle(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                              CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

ending ending_of(DWORD code) {
    // Unhandled exceptions end a process with their own code, an error by its severity bits; abort() with 3.
    if (code >= 0xC0000000 || code == 3) return {ending::kind::crashed, 0, "code " + hexadecimal(code)};
    return {ending::kind::exited, static_cast<int>(code), {}};
}

std::size_t heap_bytes() {
    std::size_t bytes = 0;
    HANDLE heaps[64];
    const DWORD count = GetProcessHeaps(64, heaps);
    for (DWORD i = 0; i < count && i < 64; ++i) {
        if (!HeapLock(heaps[i])) continue;
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

BOOL CALLBACK count_window(HWND, LPARAM count) {
    ++*reinterpret_cast<std::size_t*>(count);
    return TRUE;
}

}  // namespace

std::vector<fs::path> arguments(int, char**) {
    int count = 0;
    wchar_t** values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<fs::path> result(values + 1, values + count);
    LocalFree(values);
    return result;
}

struct child::process {
    handle object;
};

child::child(const std::vector<fs::path>& arguments, const fs::path& folder, const fs::path& output) {
    const handle file = inheritable_file(output);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = start.hStdError = file.get();
    PROCESS_INFORMATION started{};
    std::wstring line = command_line(arguments);
    if (!file || !CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, folder.c_str(),
                                 &start, &started))
        throw std::runtime_error("error " + std::to_string(GetLastError()));
    CloseHandle(started.hThread);
    process_.reset(new process{handle(started.hProcess)});
}

child::~child() {
    TerminateProcess(process_->object.get(), 1);
    WaitForSingleObject(process_->object.get(), INFINITE);
}

std::optional<ending> child::wait(std::chrono::milliseconds patience) {
    const DWORD limit = static_cast<DWORD>(patience.count());
    if (WaitForSingleObject(process_->object.get(), limit) == WAIT_TIMEOUT) return std::nullopt;
    DWORD code = 0;
    GetExitCodeProcess(process_->object.get(), &code);
    return ending_of(code);
}

std::chrono::nanoseconds child::processor_time() const { return processor_time_of(process_->object.get()); }

void crash_quietly() {
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    SetUnhandledExceptionFilter([](EXCEPTION_POINTERS* problem) -> LONG {
        TerminateProcess(GetCurrentProcess(), problem->ExceptionRecord->ExceptionCode);
        return EXCEPTION_EXECUTE_HANDLER;
    });
}

void load_host_modules() {
    for (const wchar_t* module :
         {L"oxk_basic", L"oxk_entity", L"oxk_msgs", L"oxk_prg", L"oxk_prj", L"oxk_proj4_d2", L"oxk_scn_2d"})
        LoadLibraryW((std::wstring(module) + L".dll").c_str());
}

library::library(const fs::path& file) : handle_(LoadLibraryW(file.c_str())) {
    if (!handle_) throw std::runtime_error("error " + std::to_string(GetLastError()));
}
library::~library() { FreeLibrary(static_cast<HMODULE>(handle_)); }
void* library::find(const char* function) const {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(handle_), function));
}

bool is_loaded(const fs::path& file) { return GetModuleHandleW(file.filename().c_str()) != nullptr; }

holdings count_holdings() {
    holdings now;
    DWORD handles = 0;
    GetProcessHandleCount(GetCurrentProcess(), &handles);
    now.handles = handles;
    now.heap = heap_bytes();
    PROCESS_MEMORY_COUNTERS_EX memory{};
    memory.cb = sizeof memory;
    GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory), memory.cb);
    now.mapped = memory.PrivateUsage;
    EnumThreadWindows(GetCurrentThreadId(), count_window, reinterpret_cast<LPARAM>(&now.windows));
    return now;
}

std::size_t kept_by_runtime() { return 1024; }

}  // namespace oxcheck::system
