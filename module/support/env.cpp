#include "support/env.h"

#include <chrono>
#include <cstdint>
#include <map>

namespace ox {
namespace {

Tox_env* installed = nullptr;

std::map<std::string, std::int64_t> starts;  // seconds since the epoch

std::int64_t now() {
    using namespace std::chrono;
    return duration_cast<seconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace

void set_env(Tox_env* sink) { installed = sink; }

Tox_env* get_env() { return installed; }

void timer_start(const std::string& name) { starts.emplace(name, now()); }

void timer_stop(const std::string& name) {
    const auto start = starts.find(name);
    const auto elapsed = start == starts.end()
                             ? "unknown start"
                             : std::to_string(static_cast<std::int32_t>(now() - start->second));
    if (installed) installed->debug((name + " time(" + elapsed + ")").c_str());
}

void clear_timers() { starts.clear(); }

}  // namespace ox
