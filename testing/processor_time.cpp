#include "testing/processor_time.h"

#if defined(_WIN32)
#include <windows.h>

std::chrono::nanoseconds processor_time_of(process_id process) {
    using ticks = std::chrono::duration<long long, std::ratio<1, 10'000'000>>;
    FILETIME started{}, ended{}, kernel{}, user{};
    GetProcessTimes(process, &started, &ended, &kernel, &user);
    const auto count = [](const FILETIME& time) {
        return static_cast<long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    };
    return ticks(count(kernel) + count(user));
}
std::chrono::nanoseconds processor_time() { return processor_time_of(GetCurrentProcess()); }

#else
#include <ctime>

std::chrono::nanoseconds processor_time_of(process_id process) {
    clockid_t clock{};
    timespec used{};
    if (clock_getcpuclockid(process, &clock) == 0) clock_gettime(clock, &used);
    return std::chrono::seconds(used.tv_sec) + std::chrono::nanoseconds(used.tv_nsec);
}
std::chrono::nanoseconds processor_time() { return processor_time_of(0); }
#endif
