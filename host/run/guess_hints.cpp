#include "run/guess_hints.h"

#include <algorithm>

#include "geodesy/crs.h"
#include "geodesy/measure.h"

namespace oxhost::run {

guess_hints hints_of(project& opened, const std::vector<scene*>& asked) {
    constexpr std::size_t most = 200;
    std::vector<const scene*> others;
    for (const scene& each : opened.scenes())
        if (each.line && !each.proj4.empty() && std::ranges::find(asked, &each) == asked.end())
            others.push_back(&each);
    guess_hints hints;
    const std::size_t count = std::min(most, others.size());
    for (std::size_t i = 0; i < count; ++i) {
        const scene& other = *others[i * others.size() / count];
        const polyline line = opened.read_line(other).xy;
        if (line.empty() || !crs_of(other.proj4)->valid()) continue;
        if (const auto place = to_wgs84({line[line.size() / 2]}, other.proj4))
            hints.near.push_back(place->front());
        hints.texts.push_back(other.proj4);
    }
    return hints;
}

}  // namespace oxhost::run
