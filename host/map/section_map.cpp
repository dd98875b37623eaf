#include "map/section_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geodesy/description.h"
#include "geodesy/measure.h"
#include "map/captions.h"
#include "map/frame.h"
#include "map/regions.h"
#include "map/svg.h"

namespace oxhost::app {

namespace {

constexpr double picture_width = 1120;
constexpr double edge = 44;     // left and right of the frames, for the degrees of latitude
constexpr double gap = 30;      // between frames
constexpr double heading = 64;  // above the first frame
constexpr double footer = 74;   // the legend
constexpr double detail_height = 320;
constexpr std::size_t most_regions = 6;

constexpr auto style = R"(<style>
  text { font-family: "DejaVu Sans", Verdana, Arial, sans-serif; font-size: 11px; fill: #25313b; }
  .title { font-size: 18px; font-weight: bold; }
  .degrees { font-size: 9.5px; fill: #6b7780; }
  .ground { fill: #fbfcfa; stroke: #8d99a2; }
  .graticule { fill: none; stroke: #d8dfe3; stroke-width: 0.8; }
  .scale { fill: none; stroke: #25313b; stroke-width: 1.4; }
  .line { fill: none; stroke-linecap: round; stroke-linejoin: round; }
  .before { stroke: #f0b458; stroke-width: 6; }
  .after { stroke: #174a7c; stroke-width: 1.9; }
  .failed { stroke: #c62828; stroke-width: 2; stroke-dasharray: 5 4; }
  .kept { stroke: #5f6b73; stroke-width: 1.9; }
  .caption { paint-order: stroke; stroke: #fbfcfa; stroke-width: 3; stroke-linejoin: round; }
  .region { fill: none; stroke: #b0413e; stroke-width: 1.2; }
  .letter { font-weight: bold; fill: #b0413e; font-size: 13px; }
</style>
)";

/// A scene as the map shows it, WGS 84 longitude and latitude.
struct drawn_scene {
    std::string caption;
    const char* look;  ///< class of the line that is there now
    std::optional<polyline> before;
    std::optional<polyline> after;
    geographic_extent bounds{};
};

/// Longitudes go on beyond 180 degrees instead of jumping.
void unwrap(polyline& line) {
    for (std::size_t i = 1; i < line.size(); ++i)
        line[i].x = line[i - 1].x + std::remainder(line[i].x - line[i - 1].x, 360);
}

std::optional<polyline> placed(const polyline& line, const std::string& proj4) try {
    if (proj4.empty() || line.empty()) return std::nullopt;
    auto geographic = to_wgs84(line, proj4);
    if (geographic) unwrap(*geographic);
    return geographic;
} catch (const std::invalid_argument&) {
    return std::nullopt;  // PROJ refuses the scene's text
}

const char* look_of(outcome came_to) {
    if (came_to == outcome::failed) return "failed";
    return came_to == outcome::reprojected || came_to == outcome::assigned ? "after" : "kept";
}

std::vector<drawn_scene> place_scenes(const run_record& run) {
    std::vector<drawn_scene> scenes;
    for (std::size_t i = 0; i < run.results.size(); ++i) {
        const scene_result& of = run.results[i];
        drawn_scene& drawn = scenes.emplace_back(drawn_scene{of.of->caption, look_of(of.came_to), {}, {}});
        if (of.came_to == outcome::reprojected || of.came_to == outcome::reset)
            drawn.before = placed(run.before[i], of.source);
        drawn.after = placed(run.after[i], of.of->proj4);
        for (const auto* line : {&drawn.before, &drawn.after})
            if (*line)
                for (const point& p : **line) drawn.bounds.add(p);
    }
    return scenes;
}

/// Vertices closer than the eye can tell are left out.
std::string path_of(const polyline& line, const map_frame& in, const char* look) {
    constexpr double smallest_step = 0.4;
    std::string d;
    point last{};
    for (std::size_t i = 0; i < line.size(); ++i) {
        const point at = in.to_picture(line[i]);
        const bool near = std::hypot(at.x - last.x, at.y - last.y) < smallest_step;
        if (i > 0 && near && i + 1 < line.size()) continue;
        d += (i == 0 ? "M" : "L") + svg::number(at.x) + ' ' + svg::number(at.y);
        last = at;
    }
    return "<path class=\"line " + std::string(look) + "\" d=\"" + d + "\"/>\n";
}

std::string text_element(const char* look, double x, double y, const std::string& text) {
    return "<text class=\"" + std::string(look) + "\" x=\"" + svg::number(x) + "\" y=\"" + svg::number(y) +
           "\">" + svg::text(text) + "</text>\n";
}

std::string draw_lines(const map_frame& in, const std::vector<drawn_scene>& scenes,
                       const std::vector<std::size_t>& which) {
    std::string drawn;
    for (const std::size_t i : which)
        if (scenes[i].before) drawn += path_of(*scenes[i].before, in, "before");
    for (const std::size_t i : which)
        if (scenes[i].after) drawn += path_of(*scenes[i].after, in, scenes[i].look);
    return drawn;
}

/// The line of a scene as it lies in the picture.
polyline picture_path(const map_frame& in, const drawn_scene& of) {
    polyline path = of.after ? *of.after : *of.before;
    for (point& p : path) p = in.to_picture(p);
    return path;
}

std::string draw_captions(const map_frame& in, const std::vector<drawn_scene>& scenes,
                          const std::vector<std::size_t>& which) {
    constexpr std::size_t most_avoided = 100;
    map_captions captions(in.place());
    captions.avoid(in.scale_bar_place());
    if (which.size() <= most_avoided)
        for (const std::size_t i : which) captions.avoid(picture_path(in, scenes[i]));
    for (const std::size_t i : which) captions.add(scenes[i].caption, picture_path(in, scenes[i]));
    std::string drawn;
    for (const auto& [text, x, y] : captions.placed()) drawn += text_element("caption", x, y, text);
    return drawn;
}

std::string letter_of(std::size_t region) { return std::string(1, static_cast<char>('A' + region)); }

/// The frame of all regions, each a lettered box.
std::string draw_overview(const map_frame& in, const std::vector<drawn_scene>& scenes,
                          const std::vector<map_region>& regions) {
    std::string drawn = in.graticule();
    for (std::size_t r = 0; r < regions.size(); ++r) {
        drawn += draw_lines(in, scenes, regions[r].lines);
        constexpr double room = 7;
        const rectangle box = in.to_picture(regions[r].bounds);
        drawn += "<rect class=\"region\" x=\"" + svg::number(box.x - room) + "\" y=\"" +
                 svg::number(box.y - room) + "\" width=\"" + svg::number(box.width + 2 * room) +
                 "\" height=\"" + svg::number(box.height + 2 * room) + "\" rx=\"3\"/>\n" +
                 text_element("letter", box.x - room, box.y - room - 4, letter_of(r));
    }
    return drawn;
}

/// As much as the regions need at full width.
double overview_height(const geographic_extent& all, double width) {
    const double shrink = std::cos((all.min_y + all.max_y) / 2 * std::numbers::pi / 180);
    const double full = width * (all.max_y - all.min_y) / ((all.max_x - all.min_x) * std::max(shrink, 0.1));
    return std::clamp(full, 200.0, 420.0);
}

std::string draw_legend(const run_record& run, const std::vector<drawn_scene>& scenes, double top) {
    std::string drawn;
    double x = edge;
    const auto entry = [&](const char* look, std::string_view text) {
        drawn += "<path class=\"line " + std::string(look) + "\" d=\"M" + svg::number(x) + ' ' +
                 svg::number(top) + "h34\"/>\n" + text_element("legend", x + 42, top + 4, std::string(text));
        x += 62 + map_captions::width_of(text);
    };
    const auto any = [&](std::string_view look) {
        return std::ranges::any_of(scenes, [&](const drawn_scene& s) { return s.look == look; });
    };
    entry("before", in_language("до, в исходных проекциях", "before, in the source projections"));
    entry("after", in_language("после, в целевой проекции", "after, in the target projection"));
    if (any("kept")) entry("kept", in_language("без изменений", "left as it was"));
    if (any("failed")) entry("failed", in_language("ошибка", "failed"));
    const std::size_t missing = static_cast<std::size_t>(
        std::ranges::count_if(scenes, [](const drawn_scene& s) { return s.bounds.empty(); }));
    std::string note(in_language("Долгота и широта на WGS 84", "Longitude and latitude on WGS 84"));
    if (missing)
        note.append(in_language("; без места на карте: ", "; without a place on the map: "))
            .append(std::to_string(missing));
    if (run.command.dry_run) note += in_language("; пробный запуск", "; dry run");
    return drawn + text_element("legend", edge, top + 24, note);
}

}  // namespace

std::string section_map(const run_record& run) {
    const auto scenes = place_scenes(run);
    std::vector<geographic_extent> bounds;
    for (const drawn_scene& each : scenes) bounds.push_back(each.bounds);
    const auto regions = find_regions(bounds, most_regions);

    const double inner = picture_width - 2 * edge;
    double y = heading;
    std::string body;
    if (regions.size() > 1) {
        geographic_extent all;
        for (const map_region& each : regions) all.add(each.bounds);
        const double height = overview_height(all, inner);
        body += draw_overview(map_frame({edge, y, inner, height}, all), scenes, regions);
        y += height + gap + 22;
    }
    const std::size_t columns = regions.size() > 1 ? 2 : 1;
    const double width =
        (inner - (static_cast<double>(columns) - 1) * (gap + 16)) / static_cast<double>(columns);
    const double height = columns == 1 ? 600 : detail_height;
    for (std::size_t r = 0; r < regions.size(); ++r) {
        const bool last_alone = r + 1 == regions.size() && r % columns == 0;
        const double x = edge + static_cast<double>(r % columns) * (width + gap + 16);
        const map_frame frame({x, y, last_alone ? inner : width, height}, regions[r].bounds);
        body += frame.graticule() + draw_lines(frame, scenes, regions[r].lines) + frame.scale_bar() +
                draw_captions(frame, scenes, regions[r].lines);
        if (regions.size() > 1) body += text_element("letter", x, y - 6, letter_of(r));
        if (last_alone || r % columns + 1 == columns) y += height + gap + 22;
    }
    body += draw_legend(run, scenes, y + 4);
    const std::string size =
        "width=\"" + svg::number(picture_width) + "\" height=\"" + svg::number(y + footer) + '"';
    const std::string goal = run.to.none() ? std::string(in_language("проекция сброшена", "projection reset"))
                                           : short_description(run.to.proj4, current_language());
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size + " viewBox=\"0 0 " +
           svg::number(picture_width) + ' ' + svg::number(y + footer) + "\">\n" + style + "<rect " + size +
           " fill=\"#ffffff\"/>\n" +
           text_element("title", edge, 32, run.command.project.filename().string() + " → " + goal) + body +
           "</svg>\n";
}

}  // namespace oxhost::app
