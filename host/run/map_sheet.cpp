#include <proj.h>

#include "base/language.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "geodesy/measure.h"
#include "geodesy/proj_context.h"
#include "map/section_map.h"
#include "run/judgement.h"
#include "run/report.h"

namespace oxhost::run {

namespace {

/// "WGS 84 / UTM zone 40N (EPSG:32640)", or what the text says where it has no name.
std::string name_of(const std::string& proj4, language wanted) {
    const auto code = epsg_code(proj4);
    const pj_ptr system(code ? proj_create(proj_context(), code->c_str()) : nullptr);
    const char* name = system ? proj_get_name(system.get()) : nullptr;
    return name ? std::string(name) + " (" + *code + ')' : short_description(proj4, wanted);
}

map::look look_of(outcome came_to) {
    if (came_to == outcome::failed) return map::look::failed;
    return came_to == outcome::reprojected || came_to == outcome::assigned ? map::look::changed
                                                                           : map::look::kept;
}

}  // namespace

std::string map_text(const record& told) {
    const language wanted = current_language();
    const std::string destination =
        told.goal.none() ? words("проекция сброшена", "projection reset") : name_of(told.goal.proj4, wanted);
    map::sheet sheet{.title = told.wanted.project.stem().string() + " → " + destination,
                     .subtitle = short_description(told.goal.proj4, wanted),
                     .note = {},
                     .wanted = wanted,
                     .lines = {}};
    if (told.wanted.dry_run) sheet.note = in_language("; пробный запуск", "; dry run");
    for (std::size_t i = 0; i < told.results.size(); ++i) {
        const scene_result& result = told.results[i];
        const std::string& proj4 = result.subject->proj4;
        const polyline &before = told.before[i], &after = told.after[i];
        const bool reprojected = result.came_to == outcome::reprojected;
        map::mapped_line& line = sheet.lines.emplace_back();
        line.number = result.subject->index;
        line.caption = result.subject->caption;
        line.shown_as = look_of(result.came_to);
        if (reprojected || result.came_to == outcome::reset) line.before = placed(before, result.source);
        line.now = placed(after, proj4);
        if (result.came_to != outcome::failed)
            line.scale_error = measured(proj4, [&] { return length_distortion(after, proj4); });
        if (!reprojected) continue;
        if (const auto shift = shift_on_map(told, i)) line.shift = {shift->metres, shift->azimuth};
    }
    return map::section_map(std::move(sheet));
}

}  // namespace oxhost::run
