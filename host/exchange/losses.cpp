#include "exchange/losses.h"

#include <algorithm>

#include "base/text.h"

namespace oxhost {

namespace {

constexpr std::size_t named_at_most = 12;

}  // namespace

losses::counted& losses::find(std::vector<counted>& among, std::string_view name) {
    const auto found = std::ranges::find(among, name, &counted::name);
    return found != among.end() ? *found : among.emplace_back(counted{std::string(name)});
}

void losses::add(std::string_view kind, const std::string& of) {
    counted& found = find(kinds_, kind);
    ++found.count;
    if (!of.empty()) ++find(found.parts, of).count;
}

std::vector<std::string> losses::lines() const {
    std::vector<std::string> lines;
    for (const counted& kind : kinds_) {
        std::string parts;
        for (std::size_t i = 0; i < std::min(kind.parts.size(), named_at_most); ++i) {
            const counted& part = kind.parts[i];
            append_item(parts, part.count > 1 ? part.name + ' ' + std::to_string(part.count) : part.name);
        }
        if (kind.parts.size() > named_at_most) append_item(parts, "...");
        lines.push_back(kind.name + ": " + std::to_string(kind.count) +
                        (parts.empty() ? "" : " (" + parts + ')'));
    }
    return lines;
}

}  // namespace oxhost
