#pragma once
/// What limits on time are measured in: on a busy machine everything ends late, but takes no more of this.

#include <chrono>

/// The system's name of a process: a handle on Windows, a number elsewhere.
#if defined(_WIN32)
using process_id = void*;
#else
using process_id = int;
#endif

/// Processor time that a process, or this one, has used so far.
std::chrono::nanoseconds processor_time_of(process_id process);
std::chrono::nanoseconds processor_time();
