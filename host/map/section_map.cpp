#include "map/section_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "map/captions.h"
#include "map/frame.h"

namespace oxhost::map {

namespace {

constexpr double picture_width = 1120;
constexpr double edge = 44;       // left and right of the frames, for the degrees of latitude
constexpr double gap = 30;        // between frames
constexpr double lettering = 22;  // above a frame that has a letter
constexpr double heading = 64;    // above the first frame
constexpr double footer = 74;     // the legend
constexpr double single_height = 600;
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

constexpr auto before_class = "line before";

const char* class_of(look shown_as) {
    return shown_as == look::failed ? "line failed" : shown_as == look::kept ? "line kept" : "line after";
}

geographic_extent bounds_of(const mapped_line& line) {
    geographic_extent bounds;
    for (const auto* each : {&line.before, &line.now})
        if (*each)
            for (const point& place : **each) bounds.add(place);
    return bounds;
}

/// Vertices closer than the eye can tell are left out.
std::string path_of(const polyline& line, const frame& within) {
    constexpr double smallest_step = 0.4;
    std::string path;
    point last{};
    for (std::size_t i = 0; i < line.size(); ++i) {
        const point next = within.to_picture(line[i]);
        const bool near = std::hypot(next.x - last.x, next.y - last.y) < smallest_step;
        if (i > 0 && near && i + 1 < line.size()) continue;
        path += (i == 0 ? 'M' : 'L') + svg::pair(next.x, next.y);
        last = next;
    }
    return path;
}

/// The map of one sheet, drawn frame by frame.
class drawing {
public:
    explicit drawing(const sheet& shown) : sheet_(shown) {
        for (const mapped_line& each : sheet_.lines) bounds_.push_back(bounds_of(each));
        regions_ = find_regions(bounds_, most_regions);
    }

    std::string picture() {
        double y = heading;
        std::string body = svg::text_element("title", edge, 32, sheet_.title);
        if (regions_.size() > 1) body += overview(y);
        body += details(y);
        body += legend(y + 4);
        return svg::document(picture_width, y + footer, style, body);
    }

private:
    static constexpr double inner = picture_width - 2 * edge;

    std::string lines(const frame& within, const std::vector<std::size_t>& which) const {
        std::string drawn;
        for (const std::size_t i : which)
            if (const auto& before = sheet_.lines[i].before)
                drawn += svg::path_element(before_class, path_of(*before, within));
        for (const std::size_t i : which)
            if (const auto& now = sheet_.lines[i].now)
                drawn += svg::path_element(class_of(sheet_.lines[i].shown_as), path_of(*now, within));
        return drawn;
    }

    std::string named(const frame& within, const std::vector<std::size_t>& which) const {
        constexpr std::size_t most_avoided = 100;
        std::vector<polyline> paths;
        for (const std::size_t i : which) {
            const mapped_line& each = sheet_.lines[i];
            polyline& path = paths.emplace_back(each.now ? *each.now : *each.before);
            for (point& place : path) place = within.to_picture(place);
        }
        captions names(within.place());
        names.avoid(within.scale_bar_place());
        if (which.size() <= most_avoided)
            for (const polyline& path : paths) names.avoid(path);
        for (std::size_t n = 0; n < which.size(); ++n) names.add(sheet_.lines[which[n]].caption, paths[n]);
        std::string drawn;
        for (const auto& each : names.placed())
            drawn += svg::text_element("caption", each.place.x, each.baseline(), each.text);
        return drawn;
    }

    static std::string letter(std::size_t region, double x, double y) {
        return svg::text_element("letter", x, y, std::string(1, static_cast<char>('A' + region)));
    }

    /// The frame of all regions, each a lettered box, as high as they need at full width.
    std::string overview(double& y) const {
        constexpr double room = 7;
        geographic_extent all;
        for (const region& each : regions_) all.add(each.bounds);
        const double shrink = std::cos(all.middle().y * std::numbers::pi / 180);
        const double height =
            std::clamp(inner * all.height() / (all.width() * std::max(shrink, 0.1)), 200.0, 420.0);
        const frame within({edge, y, inner, height}, all);
        std::string drawn = within.graticule();
        for (std::size_t r = 0; r < regions_.size(); ++r) {
            const rectangle box = within.to_picture(regions_[r].bounds).grown(room);
            drawn += lines(within, regions_[r].lines) + svg::rectangle_element("region", box, 3) +
                     letter(r, box.x, box.y - 4);
        }
        y += height + gap + lettering;
        return drawn;
    }

    /// A frame for each region, two beside each other where there are several.
    std::string details(double& y) const {
        const bool several = regions_.size() > 1;
        const std::size_t columns = several ? 2 : 1;
        const double height = several ? detail_height : single_height;
        const double between = gap + 16;
        const double width = several ? (inner - between) / 2 : inner;
        std::string drawn;
        for (std::size_t r = 0; r < regions_.size(); ++r) {
            const bool last_alone = r + 1 == regions_.size() && r % columns == 0;
            const double x = edge + static_cast<double>(r % columns) * (width + between);
            const frame within({x, y, last_alone ? inner : width, height}, regions_[r].bounds);
            drawn += within.graticule() + lines(within, regions_[r].lines) + within.scale_bar(sheet_.wanted) +
                     named(within, regions_[r].lines);
            if (several) drawn += letter(r, x, y - 6);
            if (last_alone || r % columns + 1 == columns) y += height + gap + lettering;
        }
        return drawn;
    }

    std::string legend(double y) const {
        std::string drawn;
        double x = edge;
        const auto entry = [&](const char* look, std::string_view russian, std::string_view english) {
            const std::string_view text = text_in(sheet_.wanted, russian, english);
            drawn += svg::path_element(look, 'M' + svg::pair(x, y) + "h34") +
                     svg::text_element("legend", x + 42, y + 4, text);
            x += 62 + captions::width_of(text);
        };
        const auto any = [&](look sought) {
            return std::ranges::find(sheet_.lines, sought, &mapped_line::shown_as) != sheet_.lines.end();
        };
        entry(before_class, "до, в исходных проекциях", "before, in the source projections");
        entry(class_of(look::changed), "после, в целевой проекции", "after, in the target projection");
        if (any(look::kept)) entry(class_of(look::kept), "без изменений", "left as it was");
        if (any(look::failed)) entry(class_of(look::failed), "ошибка", "failed");
        std::string note(
            text_in(sheet_.wanted, "Долгота и широта на WGS 84", "Longitude and latitude on WGS 84"));
        if (const auto missing = std::ranges::count_if(bounds_, &geographic_extent::empty))
            note.append(text_in(sheet_.wanted, "; без места на карте: ", "; without a place on the map: "))
                .append(std::to_string(missing));
        return drawn + svg::text_element("legend", edge, y + 24, note + sheet_.note);
    }

    const sheet& sheet_;
    std::vector<geographic_extent> bounds_;
    std::vector<region> regions_;
};

}  // namespace

std::string section_map(sheet shown) {
    std::vector<polyline*> lines;
    for (mapped_line& each : shown.lines)
        for (auto* line : {&each.before, &each.now})
            if (*line) lines.push_back(&**line);
    gather(lines);
    return drawing(shown).picture();
}

}  // namespace oxhost::map
