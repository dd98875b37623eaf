#include "map/section_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "map/frame.h"
#include "map/labels.h"
#include "map/land.h"
#include "map/lettering.h"
#include "map/naming.h"

namespace oxhost::map {

namespace {

constexpr double picture_width = 1120;
constexpr double edge = 56;       // left and right of the frames, for the degrees of latitude
constexpr double gap = 30;        // between frames
constexpr double lettering = 22;  // above a frame that has a letter
constexpr double heading = 72;    // above the first frame
constexpr double legend_height = 48;
constexpr double lowest = 360, highest = 700, highest_of_many = 1040;  // of a frame that is alone
constexpr std::size_t many = 60;
constexpr double detail_height = 320;
constexpr double letter_size = 13;
constexpr std::size_t most_regions = 6;

constexpr auto style = R"(<style>
  text { font-family: "DejaVu Sans", Verdana, Arial, sans-serif; font-size: 11px; fill: #25313b; }
  .title { font-size: 18px; font-weight: bold; }
  .degrees { font-size: 9.5px; fill: #6b7780; }
  .subtitle, .note { font-size: 10.5px; fill: #5b6871; }
  .sea { fill: #f3f8fb; }
  .land { fill: #f6f2e7; fill-rule: evenodd; }
  .coast { fill: none; stroke: #cfc7b0; stroke-width: 0.8; stroke-linejoin: round; }
  .border { fill: none; stroke: #8d99a2; }
  .graticule { fill: none; stroke: #d3dbe0; stroke-width: 0.8; }
  .scale { fill: none; stroke: #25313b; stroke-width: 1.4; }
  .line { fill: none; stroke-linecap: round; stroke-linejoin: round; }
  .before { stroke: #f0b458; stroke-width: 6; }
  .after { stroke: #174a7c; stroke-width: 1.9; }
  .failed { stroke: #c62828; stroke-width: 2; stroke-dasharray: 5 4; }
  .kept { stroke: #5f6b73; stroke-width: 1.9; }
  .crowded .before { stroke-width: 3.6; }
  .crowded .after, .crowded .kept { stroke-width: 1.1; }
  .dot { stroke-width: 6; }
  .before.dot { stroke-width: 11; }
  .caption, .number { paint-order: stroke; stroke: #ffffff; stroke-opacity: 0.8; stroke-width: 3; stroke-linejoin: round; }
  .leader { fill: none; stroke: #25313b; stroke-width: 0.7; }
  .number { font-size: 10px; font-weight: bold; }
  .row, .head { font-size: 10.5px; }
  .head { font-weight: bold; }
  .rule { fill: none; stroke: #8d99a2; }
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

polyline drawn_in(const frame& within, polyline line) {
    for (point& place : line) place = within.to_picture(place);
    return line;
}

/// Vertices closer than the eye can tell are left out; a line that is a speck becomes a dot.
std::string path_of(const std::string& look, const polyline& drawn) {
    constexpr double smallest_step = 0.4, speck = 4;
    extent bounds;
    for (const point& place : drawn) bounds.add(place);
    if (std::hypot(bounds.width(), bounds.height()) < speck) {
        const point middle = bounds.middle();
        return svg::path_element(look + " dot", 'M' + svg::pair(middle.x, middle.y) + "h0");
    }
    std::string path;
    point last{};
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const point& next = drawn[i];
        const bool near = std::hypot(next.x - last.x, next.y - last.y) < smallest_step;
        if (i > 0 && near && i + 1 < drawn.size()) continue;
        path += (i == 0 ? 'M' : 'L') + svg::pair(next.x, next.y);
        last = next;
    }
    return svg::path_element(look, path);
}

/// The map of one sheet, drawn frame by frame.
class drawing {
public:
    explicit drawing(const sheet& shown) : sheet_(shown) {
        for (const mapped_line& each : sheet_.lines) bounds_.push_back(bounds_of(each));
        regions_ = find_regions(bounds_, most_regions);
        for (const mapped_line& each : sheet_.lines)
            rows_.push_back(
                {each.number, each.caption, each.shift, each.scale_error, each.shown_as == look::failed});
        listed_ = chosen_to_list(rows_);
    }

    std::string picture() {
        double y = heading;
        std::string body = svg::text_element("title", edge, 32, shortened(sheet_.title, inner, 18 * bold)) +
                           svg::text_element("subtitle", edge, 51, shortened(sheet_.subtitle, inner));
        if (regions_.size() > 1) body += overview(y);
        body += details(y);
        body += legend(y);
        y += legend_height;
        std::vector<listed_line> rows;
        for (const std::size_t i : listed_) rows.push_back(rows_[i]);
        const table listed = list_lines(edge, y, inner, rows, rows_.size(), sheet_.wanted);
        return svg::document(picture_width, y + listed.height, style, body + listed.elements);
    }

private:
    static constexpr double inner = picture_width - 2 * edge;
    static constexpr double bold = 1.12;  // wider than plain letters

    static std::string ground(const frame& within) {
        return svg::rectangle_element("sea", within.place()) + land_in(within) + within.graticule();
    }

    /// Lines that would hide each other are drawn thin.
    bool crowded(const frame& within, const std::vector<std::size_t>& which) const {
        constexpr double close = 6;
        if (which.size() > many) return true;
        std::vector<polyline> drawn;
        std::vector<const polyline*> paths;
        for (const std::size_t i : which) drawn.push_back(drawn_in(within, shown_of(i)));
        for (const polyline& each : drawn) paths.push_back(&each);
        return std::ranges::any_of(find_bundles(paths, which.size()), [&](const bundle& each) {
            const point &first = each.ends.front(), &last = each.ends.back();
            return std::hypot(last.x - first.x, last.y - first.y) <
                   close * static_cast<double>(each.ends.size());
        });
    }

    std::string lines(const frame& within, const std::vector<std::size_t>& which) const {
        std::string drawn = crowded(within, which) ? "<g class=\"crowded\">\n" : "<g>\n";
        for (const std::size_t i : which)
            if (const auto& before = sheet_.lines[i].before)
                drawn += path_of(before_class, drawn_in(within, *before));
        for (const std::size_t i : which)
            if (const auto& now = sheet_.lines[i].now)
                drawn += path_of(class_of(sheet_.lines[i].shown_as), drawn_in(within, *now));
        return drawn + "</g>\n";
    }

    const polyline& shown_of(std::size_t i) const {
        const mapped_line& line = sheet_.lines[i];
        return line.now ? *line.now : *line.before;
    }

    std::string named(const frame& within, const std::vector<std::size_t>& which) {
        std::vector<named_line> given;
        for (const std::size_t i : which) {
            named_line& each = given.emplace_back();
            each.path = drawn_in(within, shown_of(i));
            if (!std::ranges::binary_search(listed_, i)) continue;
            each.caption = sheet_.lines[i].caption;
            each.number = std::to_string(sheet_.lines[i].number);
        }
        const names made = name_lines(within.place(), within.scale_bar_place().grown(4), given);
        without_name_ += made.without_room;
        return made.elements;
    }

    static std::string letter_of(std::size_t region) { return {static_cast<char>('A' + region)}; }

    /// What the content needs at full width.
    static double height_for(const geographic_extent& content, double least, double most) {
        const double shrink = std::max(std::cos(content.middle().y * std::numbers::pi / 180), 0.1);
        return std::clamp(inner * content.height() / (content.width() * shrink), least, most);
    }

    /// The frame of all regions, each a lettered box, as high as they need at full width.
    std::string overview(double& y) const {
        constexpr double room = 7;
        geographic_extent all;
        for (const region& each : regions_) all.add(each.bounds);
        const double height = height_for(all, 200, 420);
        const frame within({edge, y, inner, height}, all);
        std::string drawn = ground(within);
        labels letters(within.place());
        std::vector<polyline> boxes;
        for (std::size_t r = 0; r < regions_.size(); ++r) {
            const auto [x, top, wide, high] = within.to_picture(regions_[r].bounds).grown(room);
            boxes.push_back({{x, top}, {x, top + high}, {x + wide, top + high}, {x + wide, top}, {x, top}});
            letters.avoid(boxes.back(), r);
            drawn +=
                lines(within, regions_[r].lines) + svg::rectangle_element("region", {x, top, wide, high}, 3);
        }
        for (std::size_t r = 0; r < regions_.size(); ++r) {
            letters.add(letter_of(r), {"letter", letter_size}, boxes[r], r, {.on_line = true});
        }
        for (const auto& each : letters.placed()) drawn += element(each);
        y += height + gap + lettering;
        return drawn;
    }

    /// A frame for each region, two beside each other where there are several.
    std::string details(double& y) {
        const bool several = regions_.size() > 1;
        const std::size_t columns = several ? 2 : 1;
        const double height = several || regions_.empty()
                                  ? detail_height
                                  : height_for(regions_.front().bounds, lowest,
                                               sheet_.lines.size() > many ? highest_of_many : highest);
        const double between = edge + 6;
        const double width = several ? (inner - between) / 2 : inner;
        std::string drawn;
        for (std::size_t r = 0; r < regions_.size(); ++r) {
            const bool last_alone = r + 1 == regions_.size() && r % columns == 0;
            const double x = edge + static_cast<double>(r % columns) * (width + between);
            const frame within({x, y, last_alone ? inner : width, height}, regions_[r].bounds);
            drawn += ground(within) + lines(within, regions_[r].lines) + within.scale_bar(sheet_.wanted) +
                     named(within, regions_[r].lines);
            if (several) drawn += svg::text_element("letter", x, y - 6, letter_of(r));
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
                     svg::text_element("key", x + 42, y + 4, text);
            x += 62 + width_of(text);
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
        if (without_name_ > 0)
            note.append(text_in(sheet_.wanted, "; без подписи, только в списке: ",
                                "; without room for a number, only listed: "))
                .append(std::to_string(without_name_));
        return drawn + svg::text_element("note", edge, y + 24, note + sheet_.note);
    }

    const sheet& sheet_;
    std::vector<geographic_extent> bounds_;
    std::vector<region> regions_;
    std::vector<listed_line> rows_;
    std::vector<std::size_t> listed_;  ///< of rows_
    std::size_t without_name_ = 0;
};

}  // namespace

std::string section_map(sheet shown) {
    std::vector<body> bodies;
    for (mapped_line& each : shown.lines) {
        body& lines = bodies.emplace_back();
        for (auto* line : {&each.before, &each.now})
            if (*line) lines.push_back(&**line);
    }
    gather(std::move(bodies));
    return drawing(shown).picture();
}

}  // namespace oxhost::map
