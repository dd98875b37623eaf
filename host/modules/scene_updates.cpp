#include "modules/scene_updates.h"

#include "base/utf8.h"
#include "session/journal.h"

namespace oxhost {

namespace {

/// Runs a step of one scene's update. A failure goes to the scene's record in the journal, the first one
/// stays; the bracket takes no further changes.
template <class Step>
void guarded(scene& of, Step&& step) {
    std::string failure;
    try {
        step();
        return;
    } catch (const std::exception& e) {
        failure = e.what();
    }
    of.owner->abandon_update(of);
    scene_update* record = journal::instance().current();
    if (record && !record->store_failure) record->store_failure = failure;
}

void note_written(const project& by) {
    scene_update* record = journal::instance().current();
    if (!record) return;
    record->line_stored |= by.last_written().line;
    record->text_stored |= by.last_written().text;
}

/// A change outside a bracket is a bracket of its own.
template <class Change>
void change(scene* of, Change&& make) {
    if (!of) return;
    begin_scene_update(of);
    guarded(*of, make);
    end_scene_update(of);
}

}  // namespace

void begin_scene_update(scene* of) {
    if (!of) return;
    scene* updated = of->owner->updated_scene();
    for (; updated && updated != of; updated = of->owner->updated_scene()) end_scene_update(updated);
    if (!updated) journal::instance().begin(of->index);
    guarded(*of, [of] { of->owner->begin_update(*of); });
}

void end_scene_update(scene* of) {
    if (!of || of->owner->updated_scene() != of) return;
    guarded(*of, [of] {
        of->owner->end_update(*of);
        if (!of->owner->updated_scene()) note_written(*of->owner);
    });
    if (!of->owner->updated_scene()) journal::instance().end();
}

void store_line(scene* of, const polyline* line) {
    if (line) change(of, [of, line] { of->owner->set_line(*of, *line); });
}

void store_text(scene* of, const wchar_t* text) {
    change(of, [of, text] { of->owner->set_proj4(*of, to_utf8(text)); });
}

const polyline* lend_line(scene* of) {
    const polyline* line = nullptr;
    if (of) guarded(*of, [of, &line] { line = of->owner->lend_line(*of); });
    return line;
}

}  // namespace oxhost
