#pragma once
/// Changes to scenes as the host's modules make them: the journal is told what reached the file and what the
/// project refused, and that is not thrown. A null scene is ignored. [ui]

#include <string>

#include "base/text.h"
#include "project/project.h"
#include "session/interruption.h"
#include "session/journal.h"

namespace oxhost {

namespace detail {

/// Runs a step of one scene's update. A failure goes to the scene's record in the journal, the first one
/// stays; the bracket takes no further changes.
template <class Step>
void guarded(scene& changed, Step&& step) {
    std::string failure;
    try {
        step();
        return;
    } catch (const std::exception& error) {
        failure = error.what();
    }
    changed.owner->abandon_update(changed);
    scene_update* record = journal::instance().current();
    if (record && !record->store_failure) record->store_failure = failure;
}

inline void note_written(const project& written) {
    scene_update* record = journal::instance().current();
    if (!record) return;
    record->line_stored |= written.last_written().line;
    record->text_stored |= written.last_written().text;
}

}  // namespace detail

inline void end_scene_update(scene* changed) {
    if (!changed || changed->owner->updated_scene() != changed) return;
    project& owner = *changed->owner;
    detail::guarded(*changed, [&] {
        owner.end_update(*changed);
        if (!owner.updated_scene()) detail::note_written(owner);
    });
    if (!owner.updated_scene()) journal::instance().end();
}

/// Ends the open update of another scene first. Once the run is to end, a scene that is begun is declined:
/// its bracket takes no changes.
inline void begin_scene_update(scene* changed) {
    if (!changed) return;
    project& owner = *changed->owner;
    scene* updated = owner.updated_scene();
    for (; updated && updated != changed; updated = owner.updated_scene()) end_scene_update(updated);
    if (!updated) journal::instance().begin(changed->index);
    scene_update* const record = journal::instance().current();
    if (record && !updated) record->declined = ending_wished();
    detail::guarded(*changed, [&] {
        owner.begin_update(*changed);
        if (record && record->declined) owner.abandon_update(*changed);
    });
}

/// Outside a bracket the change is a bracket of its own.
template <class Change>
void change_scene(scene* changed, Change&& change) {
    if (!changed) return;
    begin_scene_update(changed);
    detail::guarded(*changed, [&] { change(*changed->owner, *changed); });
    end_scene_update(changed);
}

/// Null leaves the line as it is.
inline void store_line(scene* changed, const section_line* line) {
    if (line) change_scene(changed, [=](project& owner, scene& one) { owner.set_line(one, *line); });
}

/// Null reads as empty.
inline void store_text(scene* changed, const wchar_t* text) {
    change_scene(changed, [=](project& owner, scene& one) { owner.set_proj4(one, to_utf8(text)); });
}

/// The scene's line; null when it has none. A line that cannot be read is null as well, and then the scene's
/// open bracket is given up: an empty line must not replace one that is there.
inline const section_line* lend_line(scene* asked) {
    const section_line* line = nullptr;
    if (asked) detail::guarded(*asked, [&] { line = asked->owner->lend_line(*asked); });
    return line;
}

}  // namespace oxhost
