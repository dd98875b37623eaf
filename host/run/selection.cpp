#include "run/selection.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/crs.h"
#include "run/request.h"

namespace oxhost::run {

namespace {

constexpr bilingual no_scene{"нет сцены ", "no scene "};

bool is_listed(const scene& asked) { return asked.profile && asked.line; }

[[noreturn]] void refuse(const project& opened, const std::string& reason) {
    throw failure(trouble::refused, opened.path().string() + ": " + reason);
}

std::optional<std::size_t> index_in(const project& opened, std::string_view text) {
    const auto index = parse_whole_number(text);
    if (!index || *index < 0 || static_cast<std::size_t>(*index) >= opened.size()) return {};
    return static_cast<std::size_t>(*index);
}

/// The scene of that caption; null for none.
scene* by_caption(project& opened, const std::string& caption) {
    scene* found = nullptr;
    for (scene* each : all_scenes(opened)) {
        if (each->caption != caption) continue;
        if (found)
            refuse(opened,
                   std::string(in_language("несколько сцен называются ", "several scenes are called ")) +
                       '"' + caption + '"' +
                       std::string(in_language(": укажите их номера", ": name them by their index")));
        found = each;
    }
    return found;
}

/// Two numbers, "2-5"; nothing when the text is no such thing.
std::optional<std::vector<scene*>> by_range(project& opened, std::string_view text) {
    const auto dash = text.find('-');
    if (dash == text.npos || dash == 0) return {};
    const std::string_view ends[] = {text.substr(0, dash), text.substr(dash + 1)};
    for (const std::string_view end : ends)
        if (!parse_whole_number(end) || end.starts_with('-')) return {};
    for (const std::string_view end : ends)
        if (!index_in(opened, end)) refuse(opened, no_scene + end);
    std::vector<scene*> found;
    for (std::size_t i = *index_in(opened, ends[0]); i <= *index_in(opened, ends[1]); ++i)
        found.push_back(opened.at(i));
    return found;
}

/// `*` stands for any characters, `?` for one.
bool fits(std::wstring_view pattern, std::wstring_view text) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = pattern.npos;  // the last one, and from where it was tried
    std::size_t tried = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            tried = t;
        } else if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == text[t])) {
            ++p, ++t;
        } else if (star != pattern.npos) {
            p = star + 1;
            t = ++tried;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', p) == pattern.npos;
}

std::vector<scene*> by_pattern(project& opened, const std::string& pattern) {
    std::vector<scene*> found;
    if (pattern.find_first_of("*?") == pattern.npos) return found;
    for (scene* each : all_scenes(opened))
        if (fits(to_wide(pattern), to_wide(each->caption))) found.push_back(each);
    return found;
}

std::vector<scene*> named_by(project& opened, const std::string& wanted, bool only_listed) {
    const auto index = index_in(opened, wanted);
    if (scene* one = index ? opened.at(*index) : by_caption(opened, wanted)) {
        if (only_listed && !is_listed(*one))
            refuse(opened, name_of(*one) + std::string(in_language(" — не профиль с линией",
                                                                   " is no profile with a line")));
        return {one};
    }
    auto found = by_range(opened, wanted).value_or(by_pattern(opened, wanted));
    if (only_listed) std::erase_if(found, [](const scene* each) { return !is_listed(*each); });
    if (found.empty()) refuse(opened, no_scene + "\"" + wanted + '"');
    return found;
}

}  // namespace

std::vector<scene*> all_scenes(project& opened) {
    std::vector<scene*> all(opened.size());
    for (std::size_t i = 0; i < opened.size(); ++i) all[i] = opened.at(i);
    return all;
}

std::vector<scene*> listed_scenes(project& opened) {
    auto listed = all_scenes(opened);
    std::erase_if(listed, [](const scene* each) { return !is_listed(*each); });
    return listed;
}

std::vector<scene*> select_scenes(project& opened, const std::vector<std::string>& wanted, bool only_listed) {
    std::set<std::size_t> indexes;
    for (const std::string& each : wanted)
        for (const scene* found : named_by(opened, each, only_listed)) indexes.insert(found->index);
    std::vector<scene*> selected;
    for (const std::size_t index : indexes) selected.push_back(opened.at(index));
    return selected;
}

std::vector<scene*> scenes_in(const std::vector<scene*>& scenes, const std::vector<std::string>& sources) {
    std::set<std::string> taken;  // texts of scenes; there are few
    for (const std::string& source : sources) {
        const target wanted = read_target(source);
        std::map<std::string, bool> judged;
        bool any = false;
        for (const scene* each : scenes) {
            const auto [text, fresh] = judged.try_emplace(each->proj4);
            if (fresh) text->second = equal(each->proj4, wanted.proj4);
            if (fresh && text->second) taken.insert(each->proj4);
            any = any || text->second;
        }
        if (!any)
            throw failure(trouble::refused,
                          '"' + source + "\": " +
                              std::string(in_language("ни одна сцена не имеет этой проекции",
                                                      "no scene has this projection")));
    }
    std::vector<scene*> found;
    for (scene* each : scenes)
        if (taken.contains(each->proj4)) found.push_back(each);
    return found;
}

}  // namespace oxhost::run
