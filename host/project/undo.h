#pragma once
/// Runs of changes that can be taken back. What a run changed is kept in the project, scene by scene as it
/// was before, written together with the change itself: a killed run is one that can be undone.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace oxhost {

/// What becomes of the lines and texts that a run replaces.
enum class run_records {
    kept,       ///< they stay, for project::undo
    until_end,  ///< they stay for project::roll_back_run; a run that ends well drops them, as `none` does
    none        ///< they are lost, and so is what earlier runs had kept of the same scenes
};

/// What a run is for.
struct run_goal {
    std::string given;  ///< the target as the user spelled it, or the name of a utility
    std::string proj4;  ///< the target's text; empty where there is none
};

/// A run that can be undone.
struct past_run {
    std::int64_t id = 0;
    std::string started;  ///< UTC, "2026-11-23T21:30:00Z"
    run_goal goal;
    std::size_t scenes = 0;  ///< whose former state is kept
};

/// Whether scenes that something else has changed since a run are put back all the same.
enum class later_changes { respected, overwritten };

/// What taking back a run came to. Scenes as `name_of` names them.
struct undone {
    past_run run;
    std::size_t taken_back = 0;
    std::vector<std::string> changed_since;  ///< left alone, or overwritten and among those taken back
    std::vector<std::string> gone;           ///< no longer in the project
};

}  // namespace oxhost
