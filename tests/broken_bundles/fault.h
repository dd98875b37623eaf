#pragma once
/// A small good bundle, and the one thing that each of its broken brothers does wrong.

namespace broken {

enum class fault {
    none,                 ///< the good one
    no_unload_guard,      ///< an export is missing
    changing_table,       ///< the entry answers another table every time
    calls_empty_visitor,  ///< visitors whose object word is empty are called
    throws,               ///< out of a reserved entry
    crashes,              ///< in a reserved entry
    hangs,                ///< in a reserved entry, at work
    sleeps,               ///< in a reserved entry, for ever
    slow_load,            ///< more than 100 ms of processor time
    noisy_load,           ///< prints while it is loaded
    leaks_memory,         ///< each time it is loaded
    wrong_order,          ///< of factories
    answers_any_version,  ///< of the label interface
    leaks_referrer,       ///< one referrer of the context stays for ever
    forgets_pins,         ///< an empty referrer does not hold
    trusts_visitors,      ///< calls through an empty one
    keeps_visitor,        ///< and calls it at the next occasion
    keeps_text,           ///< points at the text that it was lent
    keeps_first_view,     ///< later ones, and empty ones, are ignored
    one_language,         ///< a caption that is English for everybody
    acts_unseen,          ///< changes scenes where no dialog can be shown
    counts_runs,          ///< a run leaves something else than the one before
    leaks_on_failure,     ///< the reprojector that could not be set up stays
    open_bracket,         ///< after a reprojection that failed
    praises_failure,      ///< reports success whatever happened
};

/// Of this bundle; the rest of its code is that of all the others.
extern const fault deviation;

inline bool is(fault which) { return deviation == which; }

}  // namespace broken
