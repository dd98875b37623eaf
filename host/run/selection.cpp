#include "run/selection.h"

#include <set>

#include "base/numbers.h"
#include "run/failure.h"

namespace oxhost::run {

namespace {

bool is_listed(const scene& asked) { return asked.profile && asked.line; }

bool can_be_read(const std::filesystem::path& file) {
    try {
        project::open(file, open_mode::read_only);
        return true;
    } catch (const project_error&) {
        return false;
    }
}

[[noreturn]] void refuse(const project& opened, const std::string& reason) {
    throw failure(trouble::refused, opened.path().string() + ": " + reason);
}

/// Null when the text is no index of a scene.
scene* by_index(project& opened, const std::string& text) {
    const auto index = parse_whole_number(text);
    return index && *index >= 0 ? opened.at(static_cast<std::size_t>(*index)) : nullptr;
}

scene& find(project& opened, const std::string& wanted) {
    if (scene* found = by_index(opened, wanted)) return *found;
    scene* found = nullptr;
    for (std::size_t i = 0; i < opened.size(); ++i) {
        scene& each = *opened.at(i);
        if (each.caption != wanted) continue;
        if (found) refuse(opened, "several scenes are called \"" + wanted + "\": name them by their index");
        found = &each;
    }
    if (!found) refuse(opened, "no scene \"" + wanted + '"');
    return *found;
}

}  // namespace

std::unique_ptr<project> open_project(const std::filesystem::path& file, open_mode mode) try {
    return project::open(file, mode);
} catch (const project_error& error) {
    const bool only_writing_fails = mode == open_mode::read_write && can_be_read(file);
    throw failure(only_writing_fails ? trouble::refused : trouble::unreadable, error.what());
}

std::vector<scene*> listed_scenes(project& opened) {
    std::vector<scene*> listed;
    for (std::size_t i = 0; i < opened.size(); ++i)
        if (is_listed(*opened.at(i))) listed.push_back(opened.at(i));
    return listed;
}

std::vector<scene*> select_scenes(project& opened, const std::vector<std::string>& wanted) {
    std::set<std::size_t> indexes;
    for (const std::string& each : wanted) {
        const scene& found = find(opened, each);
        if (!is_listed(found)) refuse(opened, name_of(found) + " is no profile with a line");
        indexes.insert(found.index);
    }
    std::vector<scene*> selected;
    for (const std::size_t index : indexes) selected.push_back(opened.at(index));
    return selected;
}

}  // namespace oxhost::run
