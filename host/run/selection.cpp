#include "run/selection.h"

#include <set>

#include "app/command.h"
#include "base/numbers.h"

namespace oxhost::app {

namespace {

bool is_listed(const scene& of) { return of.profile && of.line; }

/// Null when the text is no index of a scene.
scene* by_index(project& in, const std::string& text) {
    const auto index = parse_whole_number(text);
    return index && *index >= 0 ? in.at(static_cast<std::size_t>(*index)) : nullptr;
}

scene& find(project& in, const std::string& wanted) {
    const std::string place = in.path().string() + ": ";
    if (scene* found = by_index(in, wanted)) return *found;
    scene* found = nullptr;
    for (std::size_t i = 0; i < in.size(); ++i) {
        scene& each = *in.at(i);
        if (each.caption != wanted) continue;
        if (found)
            throw failure(exit_code::nothing_done,
                          place + "several scenes are called \"" + wanted + "\": name them by their index");
        found = &each;
    }
    if (!found) throw failure(exit_code::nothing_done, place + "no scene \"" + wanted + '"');
    return *found;
}

}  // namespace

std::vector<scene*> listed_scenes(project& in) {
    std::vector<scene*> listed;
    for (std::size_t i = 0; i < in.size(); ++i)
        if (is_listed(*in.at(i))) listed.push_back(in.at(i));
    return listed;
}

std::vector<scene*> select_scenes(project& in, const std::vector<std::string>& wanted) {
    std::set<std::size_t> indexes;
    for (const std::string& each : wanted) {
        const scene& found = find(in, each);
        if (!is_listed(found))
            throw failure(exit_code::nothing_done,
                          in.path().string() + ": " + name_of(found) + " is no profile with a line");
        indexes.insert(found.index);
    }
    std::vector<scene*> selected;
    for (const std::size_t index : indexes) selected.push_back(in.at(index));
    return selected;
}

}  // namespace oxhost::app
