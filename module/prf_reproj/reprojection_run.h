#pragma once
/// What the apply button does: checks the chosen scenes, asks where the result is no reprojection, and
/// reprojects scene by scene until one fails. What is done stays done. [ui]

#include <cstdint>
#include <string>

#include "prf_reproj/profile_list.h"

namespace ox::prf_reproj {

/// What there is to ask before a run.
enum class reproj_check_state : unsigned {
    ok = 0,
    target_empty = 1,              ///< the projections will be reset; goes before the next one
    scene_without_projection = 2,  ///< they will be assigned
};

/// The whole run, messages included; rebuilds the list. Always false: the dialog stays open.
bool run_reprojection(prf_list& list);

/// False when there are no scenes or one of them is no profile.
bool check(const prf_reproj_job& job, reproj_check_state& state);

/// All scenes in order, with progress; false at the first that fails, the rest is then not attempted.
bool reproject_all(const prf_reproj_job& job);

/// One scene, in its update bracket. A scene or a target without projection takes the target text and
/// keeps its line; a scene in an equivalent projection stays as it is. False: the scene is unchanged.
bool reproject_scene(void* scene, const std::wstring& target_pj4);

/// Message boxes of the host, by the id of their text.
void show_message(std::int32_t text_id);
void show_error(std::int32_t text_id);
bool ask_yes_no(std::int32_t text_id);  ///< true for yes

}  // namespace ox::prf_reproj
