#pragma once
/// A wish from outside that the work ends: SIGINT or SIGTERM, or a person's Cancel. Whoever changes scenes
/// asks between two of them.

namespace oxhost {

/// The signal that arrived since the first watch began; 0 while none has.
int interrupting_signal();

/// True since a signal arrived, or while a person's wish holds.
bool ending_wished();
/// A person's wish that the work in hand ends; who began the work takes the wish back when it has ended.
void wish_ending(bool wished);

/// While it lives, the first SIGINT or SIGTERM is noted, and a second of the same kind ends the process at
/// once. A signal that the process was started to ignore stays ignored. One at a time.
class interruption_watch {
public:
    interruption_watch();
    ~interruption_watch();
    interruption_watch(const interruption_watch&) = delete;
    interruption_watch& operator=(const interruption_watch&) = delete;
};

/// False when a signal comes first. Call it before reading: the read itself is not cut short.
bool wait_for_input(int file);

/// Ends the process by the signal that was noted, so that a shell learns of it; returns when none was.
/// Nothing that has to be cleaned up may be left.
void end_by_signal();

/// A reader that goes away ends the printing and not the process, from now on.
void ignore_closed_pipes();

}  // namespace oxhost
