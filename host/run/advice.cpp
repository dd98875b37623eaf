#include "run/reprojection.h"

#include <algorithm>
#include <map>
#include <set>

#include "base/language.h"
#include "geodesy/warnings.h"

namespace oxhost::run {

namespace {

/// The first scene and those that hold the extremes of the four sides.
std::set<std::size_t> outermost(const std::vector<scene_result>& scenes,
                                const std::vector<std::size_t>& members) {
    const auto bounds = [&](std::size_t i) { return scenes[i].subject->line->bounds; };
    const auto farthest = [&](auto side) {
        return *std::ranges::max_element(members, {}, [&](std::size_t i) { return side(bounds(i)); });
    };
    return {members.front(), farthest([](const extent& e) { return -e.min_x; }),
            farthest([](const extent& e) { return e.max_x; }),
            farthest([](const extent& e) { return -e.min_y; }),
            farthest([](const extent& e) { return e.max_y; })};
}

/// A warning that differs in its numbers only is the same one.
std::string without_numbers(std::string text) {
    std::erase_if(text, [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
    return text;
}

}  // namespace

std::vector<std::string> advise(project& opened, const std::vector<scene_result>& scenes,
                                const std::string& target) {
    if (target.empty()) return {};
    std::map<std::string, std::vector<std::size_t>> by_source;
    for (std::size_t i = 0; i < scenes.size(); ++i) by_source[scenes[i].source].push_back(i);
    std::set<std::string> known;
    std::multimap<std::size_t, std::string> found;
    for (const auto& [source, members] : by_source) {
        if (source.empty()) continue;
        for (const std::size_t i : outermost(scenes, members)) {
            const auto lines =
                warnings_for(source, target, opened.read_line(*scenes[i].subject).xy, current_language());
            for (const std::string& line : lines)
                if (known.insert(source + '\n' + without_numbers(line)).second)
                    found.emplace(i, name_of(*scenes[i].subject) + ": " + line);
        }
    }
    std::vector<std::string> said;
    for (auto& [place, line] : found) said.push_back(std::move(line));
    if (by_source.contains(""))
        for (const std::string& line : warnings_for(target, current_language()))
            said.push_back(words("целевая проекция: ", "target: ") + line);
    return said;
}

}  // namespace oxhost::run
