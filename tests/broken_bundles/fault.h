#pragma once
/// A small good bundle, and the one thing that each of its broken brothers does wrong.

namespace broken {

enum class fault {
    none,                     ///< the good one
    unopenable,               ///< the loader refuses it
    no_unload_guard,          ///< an export is missing
    slow_load,                ///< more than 100 ms of processor time
    noisy_load,               ///< prints while it is loaded
    leaks_memory,             ///< each time it is loaded
    stays_mapped,             ///< once its utility has run
    changing_table,           ///< the entry answers another table every time
    loses_argument,           ///< the entry answers another object than it was given
    calls_empty_visitor,      ///< visitors whose object word is empty are called
    throws,                   ///< out of a reserved entry
    crashes,                  ///< in a reserved entry
    hangs,                    ///< in a reserved entry, at work
    sleeps,                   ///< in a reserved entry, for ever
    answers_context,          ///< its context knows an interface
    wrong_order,              ///< of factories
    reorders_factories,       ///< at the third visit
    publishes_anew,           ///< one service more at the second creation
    trusts_context,           ///< calls through an empty one
    no_polymorphic,           ///< behind slot 0 of its label
    denies_its_name,          ///< the label's
    answers_any_version,      ///< of the label interface
    second_table,             ///< of the label, in every other dialog
    miscounts,                ///< referrers
    believes_the_first,       ///< of its referrers alone, when it asks who holds
    misnames_itself,          ///< when it tells its referrers that it ends
    tells_unlinked,           ///< who left while it ended hears of it all the same
    forgets_pins,             ///< an empty referrer does not hold
    leaks_referrer,           ///< one referrer of the context stays for ever
    throws_inside,            ///< as far as its own border
    current_beyond,           ///< the drop-down's current item, its last one
    trusts_visitors,          ///< calls through an empty one
    trusts_texts,             ///< a null text is read
    invents_rows,             ///< where its table has none
    notifies_early,           ///< the label, before it has changed
    notifies_twice,           ///< of each change
    notifies_idly,            ///< when nothing has changed
    keeps_first_view,         ///< later ones, and empty ones, are ignored
    keeps_visitor,            ///< and calls it at the next occasion
    keeps_text,               ///< points at the text that it was lent
    ends_menu_entries,        ///< with the menu, those with a view too
    one_language,             ///< a caption that is English for everybody
    asks_for_host_texts,      ///< the localizer, which has none
    asks_ended_localizer,     ///< in place of its own texts
    trusts_host_texts,        ///< a null text of the host is read
    shows_unasked,            ///< its dialog, in a reserved operation
    acts_unseen,              ///< changes scenes where no dialog can be shown
    trusts_project,           ///< which need not be there
    trusts_lines,             ///< which a profile need not have
    changes_outside_bracket,  ///< of the scene
    leaves_progress,          ///< on screen when all went well
    counts_runs,              ///< a run leaves something else than the one before
    hoards,                   ///< memory, run for run
    remembers_failure,        ///< in the run after it
    leaks_on_failure,         ///< the reprojector that could not be set up stays
    open_bracket,             ///< after a reprojection that failed
    half_changes,             ///< asks the host once more between a scene's line and its text
    praises_failure,          ///< a scene that could not be set up counts as done
};

/// Of this bundle; the rest of its code is that of all the others.
extern const fault deviation;

inline bool is(fault which) { return deviation == which; }

}  // namespace broken
