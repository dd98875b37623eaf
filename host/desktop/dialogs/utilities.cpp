#include "desktop/dialogs/utilities.h"

#include <QSettings>
#include <algorithm>

#include "desktop/elements/draw.h"
#include "desktop/text.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/utility_run.h"

namespace oxhost::desktop {

namespace {

constexpr auto bundles_key = "bundles";

/// Beside the program, as its catalogue is.
std::filesystem::path bundle_folder() { return oxhost::run::catalogue_folder().parent_path(); }

}  // namespace

utilities::utilities(document& shown, window_user& user) : document_(shown) {
    load(bundle_folder() / oxhost::run::plug_in_text::bundle_file, user);
    const auto further = QSettings().value(bundles_key).toStringList();
    for (const QString& file : further) load(to_path(file), user);
}

void utilities::load(const std::filesystem::path& file, window_user& user) {
    try {
        bundles_.push_back(std::make_unique<shell::bundle_host>(file, user));
        for (const auto& each : bundles_.back()->utilities())
            entries_.push_back({bundles_.back().get(), each.id});
    } catch (const shell::bundle_error& missing) {
        note told;
        told.kind = message_kind::error;
        told.text = to_qt(missing.what());
        document_.say(told);
    }
}

std::vector<utilities::offer> utilities::offered() const {
    std::vector<offer> all;
    for (const entry& each : entries_)
        for (const auto& found : each.bundle->utilities())
            if (found.id == each.id)
                all.push_back({to_qt(each.bundle->caption(found)), icon_of(each.bundle->icon(found))});
    return all;
}

std::size_t utilities::place_of(const std::string& id) const {
    const auto found = std::ranges::find(entries_, id, &entry::id);
    if (found == entries_.end())
        throw shell::bundle_error(words("утилита не загружена: ", "the utility is not loaded: ") + id);
    return static_cast<std::size_t>(found - entries_.begin());
}

void utilities::run(std::size_t which) {
    if (running_) throw shell::bundle_error(words("утилита уже работает", "a utility is at work already"));
    struct at_work {
        bool& flag;
        explicit at_work(bool& set) : flag(set) { flag = true; }
        ~at_work() { flag = false; }
    } const working(running_);
    const entry& chosen = entries_.at(which);
    if (!document_.opened()) {
        oxhost::run::run_utility(nullptr, *chosen.bundle, chosen.id);
        return;
    }
    document_.change([&](project& opened) {
        const auto results = oxhost::run::run_utility(&opened, *chosen.bundle, chosen.id);
        tell(results);
        Q_EMIT ended(results);
    });
}

void utilities::tell(const std::vector<oxhost::run::scene_result>& results) {
    for (const auto& each : results) {
        if (!each.failure) continue;
        note told;
        told.kind = message_kind::error;
        told.text = to_qt(failure_line(each));
        told.scene = each.subject->index;
        if (each.failure->vertex) told.place = each.failure->vertex->at;
        document_.say(told);
    }
    note told;
    told.text = to_qt(summary(results));
    document_.say(told);
}

}  // namespace oxhost::desktop
