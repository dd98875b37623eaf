#pragma once
/// The sink that the support layer reports to, and timers that report to it. At most one sink is installed;
/// code that has something to say asks for it at that moment and stays silent when there is none. The
/// module itself installs none. [ui]

#include <cstdint>
#include <string>

namespace ox {

/// Texts are narrow, in the system's code page, and lent for the call.
class Tox_env {
public:
    /// Identifies an open wait or progress; 0 is a refusal.
    using handle = std::uintptr_t;

    static constexpr std::int32_t outcome_done = 0;
    static constexpr std::int32_t outcome_user_stop = 101;  ///< every other code is an error

    virtual void message(const char* text) = 0;
    virtual void error(const char* text) = 0;
    virtual void set_debug(bool enabled) = 0;
    virtual void debug(const char* text) = 0;
    virtual handle wait_begin(const char* text) = 0;
    virtual void wait_end(handle wait) = 0;
    virtual handle progress_begin(const char* title) = 0;
    /// `position` counts from 0 to `total`.
    virtual void progress_step(handle progress, std::uint32_t position, std::uint32_t total) = 0;
    virtual void progress_end(handle progress, std::int32_t outcome) = 0;
    virtual std::uint32_t query_state() = 0;

protected:
    ~Tox_env() = default;
};

/// The caller owns the sink and removes it (null) before it ends.
void set_env(Tox_env* sink);
Tox_env* get_env();

/// Named timers; starting a name again keeps its first start.
void timer_start(const std::string& name);
/// Reports "name time(seconds)", whole seconds, or "name time(unknown start)" as a debug line. The start
/// stays for later stops.
void timer_stop(const std::string& name);
void clear_timers();

}  // namespace ox
