#pragma once
/// Named timers that report whole seconds as debug lines of the installed sink. [ui]

#include <string>

namespace ox {

/// Starting a name again keeps its first start.
void timer_start(const std::string& name);
/// Reports "name time(seconds)", or "name time(unknown start)". The start stays for later stops.
void timer_stop(const std::string& name);
void clear_timers();

}  // namespace ox
