#include "project/undo.h"

#include <algorithm>
#include <utility>

#include "project/store.h"

namespace oxhost {

namespace {

/// What memory is told when the file has a scene back.
struct returned_scene {
    scene* subject;
    std::string proj4;
    std::optional<line_summary> line;
};

[[noreturn]] void cannot_undo(const project& of, const sqlite::error& e) {
    refuse(of.path(),
           words("сцены не возвращены к прежнему виду: ", "scenes cannot be put back: ") + explain(e));
}

}  // namespace

/// Rows stand in the order of their keys.
scene* project::store::scene_of_row(std::int64_t row) {
    const auto found = std::ranges::lower_bound(scenes, row, {}, &scene::row);
    return found == scenes.end() || found->row != row ? nullptr : &*found;
}

bool project::store::can_take_back(const past_run& run) {
    return std::ranges::any_of(runs.records(run.id), [&](const undo_log::record& each) {
        const scene* subject = scene_of_row(each.row);
        return subject && digest_with(*subject, nullptr, nullptr) == each.digest;
    });
}

undone project::store::take_back(const past_run& run, later_changes others) {
    undone result{.run = run, .taken_back = 0, .changed_since = {}, .gone = {}};
    std::vector<returned_scene> returned;
    prepare_writing();
    sqlite::transaction change(db);
    layers.withdraw();
    sqlite::statement update(db, "UPDATE scenes SET proj4=?2, geom=?3 WHERE fid=?1");
    const bool overwrites = others == later_changes::overwritten;
    for (const undo_log::record& each : runs.records(run.id)) {
        scene* subject = scene_of_row(each.row);
        if (!subject) {
            result.gone.push_back(words("сцена \"", "scene \"") + each.caption + '"');
            if (overwrites) runs.drop(each.row, run.id);
            continue;
        }
        if (digest_with(*subject, nullptr, nullptr) != each.digest) {
            result.changed_since.push_back(name_of(*subject));
            if (!overwrites) continue;
        }
        undo_log::content before = runs.read(each);
        update.bind(1, each.row).bind(2, before.proj4);
        before.geometry ? update.bind(3, std::span<const std::byte>(*before.geometry)) : update.bind_null(3);
        update.run();
        runs.drop(each.row, run.id);
        const auto line = before.geometry ? std::optional(summarize_blob(*before.geometry)) : std::nullopt;
        returned.push_back({subject, std::move(before.proj4), line});
    }
    result.taken_back = returned.size();
    if (returned.empty() && !(overwrites && !result.gone.empty())) return result;
    runs.remove_empty_runs();
    change.commit();
    layers.withdrawn();
    changed = true;
    for (returned_scene& each : returned) {
        each.subject->proj4 = std::move(each.proj4);
        each.subject->line = each.line;
        lent.erase(each.subject);
    }
    return result;
}

// ---- the project's side

void project::begin_run(run_goal goal, run_records records) {
    try {
        if (!store_->db.get()) refuse(path(), in_language("закрыт", "is closed"));
        store_->runs.begin(std::move(goal), records);
    } catch (const sqlite::error& e) {
        refuse(path(), explain(e));
    }
}

void project::end_run() {
    try {
        store_->runs.end();
    } catch (const sqlite::error& e) {
        refuse(path(), explain(e));
    }
}

void project::roll_back_run() {
    try {
        const past_run own{.id = store_->runs.run(), .started = {}, .goal = {}, .scenes = 0};
        if (own.id != 0) store_->take_back(own, later_changes::overwritten);
        store_->runs.abandon();
    } catch (const sqlite::error& e) {
        cannot_undo(*this, e);
    }
}

std::vector<past_run> project::past_runs() {
    try {
        if (!store_->db.get()) refuse(path(), in_language("закрыт", "is closed"));
        return store_->runs.runs();
    } catch (const sqlite::error& e) {
        refuse(path(), explain(e));
    }
}

std::optional<undone> project::undo(later_changes others) {
    const auto runs = past_runs();
    if (runs.empty()) return {};
    try {
        const auto possible = [&](const past_run& each) {
            return others == later_changes::overwritten || store_->can_take_back(each);
        };
        const auto found = std::ranges::find_if(runs, possible);
        return store_->take_back(found == runs.end() ? runs.front() : *found, others);
    } catch (const sqlite::error& e) {
        cannot_undo(*this, e);
    } catch (const blob_error& e) {
        refuse(path(), e.what());
    }
}

}  // namespace oxhost
