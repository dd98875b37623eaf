#include <stdexcept>

#include "base/language.h"
#include "geodesy/description.h"
#include "geodesy/measure.h"
#include "map/section_map.h"
#include "run/report.h"

namespace oxhost::run {

namespace {

/// Where a line lies, if that can be told.
std::optional<polyline> placed(const polyline& line, const std::string& proj4) {
    if (proj4.empty() || line.empty()) return std::nullopt;
    try {
        return to_wgs84(line, proj4);
    } catch (const std::invalid_argument&) {  // a text that PROJ refuses places nothing
        return std::nullopt;
    }
}

map::look look_of(outcome came_to) {
    if (came_to == outcome::failed) return map::look::failed;
    return came_to == outcome::reprojected || came_to == outcome::assigned ? map::look::changed
                                                                           : map::look::kept;
}

}  // namespace

std::string map_text(const record& told) {
    const language wanted = current_language();
    const std::string destination = told.goal.none()
                                        ? std::string(in_language("проекция сброшена", "projection reset"))
                                        : short_description(told.goal.proj4, wanted);
    map::sheet sheet{.title = told.wanted.project.filename().string() + " → " + destination,
                     .note = {},
                     .wanted = wanted,
                     .lines = {}};
    if (told.wanted.dry_run) sheet.note = in_language("; пробный запуск", "; dry run");
    for (std::size_t i = 0; i < told.results.size(); ++i) {
        const scene_result& result = told.results[i];
        const bool moved = result.came_to == outcome::reprojected || result.came_to == outcome::reset;
        sheet.lines.push_back({.caption = result.subject->caption,
                               .shown_as = look_of(result.came_to),
                               .before = moved ? placed(told.before[i], result.source) : std::nullopt,
                               .now = placed(told.after[i], result.subject->proj4)});
    }
    return map::section_map(std::move(sheet));
}

}  // namespace oxhost::run
