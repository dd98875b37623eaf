#include "run/request.h"

#include <unistd.h>

#include <algorithm>
#include <set>

#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "geodesy/projection_files.h"

namespace oxhost::run {

namespace {

namespace fs = std::filesystem;

target from_file(const std::string& given, const std::string& extension) {
    std::error_code ignored;
    if (!fs::exists(given, ignored)) throw failure(trouble::unreadable, given + ": no such file");
    if (!fs::is_regular_file(given, ignored) || access(given.c_str(), R_OK) != 0)
        throw failure(trouble::unreadable, given + ": cannot be read");
    return {given, extension == ".pj4" ? load_pj4(given) : load_prj(given), fs::path(given)};
}

target from_text(const std::string& given) {
    std::string text = given;
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    if (trimmed(text).empty())
        throw failure(trouble::refused, "the target is empty; \"none\" resets a projection");
    if (auto known = import_crs(text)) return {given, std::move(*known), {}};
    const std::string reason = text.find("proj=") != text.npos ? crs_of(text)->error : "";
    throw failure(trouble::refused,
                  '"' + given + "\": no projection that PROJ knows" + (reason.empty() ? "" : ": " + reason));
}

}  // namespace

target read_target(const std::string& given) {
    if (given == "none") return {given, {}, {}};
    const std::string extension = lower(fs::path(given).extension().string());
    const bool file = extension == ".pj4" || extension == ".prj";
    target read = file ? from_file(given, extension) : from_text(given);
    if (const auto system = crs_of(read.proj4); !system->valid())
        throw failure(trouble::refused, (file ? given + ": " : "") + '"' + read.proj4 +
                                            "\": PROJ refuses it: " + system->error);
    return read;
}

fs::path file_of(const target& wanted, const temporary_folder& folder) {
    if (wanted.file) return *wanted.file;
    const fs::path file = folder / "target.pj4";
    save_pj4(file.string(), wanted.proj4);
    return file;
}

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

std::vector<scene*> all_scenes(project& opened) {
    std::vector<scene*> all;
    for (std::size_t i = 0; i < opened.size(); ++i) all.push_back(opened.at(i));
    return all;
}

std::vector<scene*> listed_scenes(project& opened) {
    std::vector<scene*> listed;
    for (std::size_t i = 0; i < opened.size(); ++i)
        if (is_listed(*opened.at(i))) listed.push_back(opened.at(i));
    return listed;
}

std::vector<scene*> select_scenes(project& opened, const std::vector<std::string>& wanted, bool only_listed) {
    std::set<std::size_t> indexes;
    for (const std::string& each : wanted) {
        const scene& found = find(opened, each);
        if (only_listed && !is_listed(found)) refuse(opened, name_of(found) + " is no profile with a line");
        indexes.insert(found.index);
    }
    std::vector<scene*> selected;
    for (const std::size_t index : indexes) selected.push_back(opened.at(index));
    return selected;
}

}  // namespace oxhost::run
