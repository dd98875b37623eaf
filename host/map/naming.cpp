#include "map/naming.h"

#include <algorithm>
#include <numeric>

#include "map/labels.h"
#include "map/lettering.h"

namespace oxhost::map {

namespace {

constexpr text_style caption_style{"caption", text_size}, number_style{"number", 10};
constexpr double widest_caption = 0.66;         // of the frame; a longer one gives way to the number
constexpr std::size_t most_captions = 60;       // in one frame
constexpr std::size_t most_with_leaders = 400;  // more would hide the lines
constexpr std::size_t most_in_a_column = 40;

/// From the top down, so that neighbours get their texts in the order in which they lie.
std::vector<std::size_t> in_reading_order(const std::vector<named_line>& lines) {
    std::vector<std::size_t> order(lines.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return lines[i].path.back().y; });
    return order;
}

/// One try to name all lines of a frame.
class naming {
public:
    /// With numbers alone these may lie on the lines.
    naming(const rectangle& within, const rectangle& reserved, const std::vector<named_line>& lines,
           bool captions)
        : lines_(lines),
          captions_(captions),
          widest_(within.width * widest_caption),
          ways_{.leader = lines.size() <= most_with_leaders, .on_line = !captions},
          placed_(within),
          named_(lines.size()) {
        for (std::size_t i = 0; i < lines.size(); ++i) named_[i] = lines[i].number.empty();
        placed_.avoid(reserved);
        for (std::size_t i = 0; i < lines.size(); ++i) placed_.avoid(lines[i].path, i);
        if (ways_.leader) name_bundles();
        for (const std::size_t i : in_reading_order(lines))
            if (!named_[i]) named_[i] = (has_caption(i) && add(i, caption_style)) || add(i, number_style);
    }

    names result() const {
        names made;
        for (const auto& each : placed_.placed()) made.elements += element(each);
        made.without_room = static_cast<std::size_t>(std::ranges::count(named_, false));
        return made;
    }

private:
    bool has_caption(std::size_t i) const {
        const std::string& caption = lines_[i].caption;
        return captions_ && !caption.empty() && width_of(caption) <= widest_;
    }
    std::string_view text(std::size_t i, const text_style& style) const {
        return style.look == caption_style.look ? lines_[i].caption : lines_[i].number;
    }
    bool add(std::size_t i, const text_style& style) {
        return placed_.add(text(i, style), style, lines_[i].path, i, ways_);
    }

    void name_bundles() {
        std::vector<const polyline*> paths;
        for (const named_line& each : lines_) paths.push_back(&each.path);
        for (const bundle& each : find_bundles(paths, most_in_a_column)) {
            const auto unnamed = [this](std::size_t i) { return !named_[i]; };
            const bundle all = part_of(each, unnamed);
            if (all.lines.empty() || name_column(all)) continue;
            // As many as there is room for on either side, and the rest at their other ends.
            for (const bool to_the_right : {false, true}) {
                const bundle rest = part_of(each, unnamed);
                for (std::size_t wanted = (rest.lines.size() + 1) / 2; wanted > 0; --wanted)
                    if (name_column(outermost(rest, wanted, to_the_right))) break;
            }
        }
    }

    bool name_column(const bundle& lines) {
        const bool captions = std::ranges::all_of(lines.lines, [&](std::size_t i) { return has_caption(i); });
        const text_style& style = captions ? caption_style : number_style;
        std::vector<std::string_view> texts;
        for (const std::size_t i : lines.lines) texts.push_back(text(i, style));
        if (!placed_.add_column(texts, style, lines)) return false;
        for (const std::size_t i : lines.lines) named_[i] = true;
        return true;
    }

    const std::vector<named_line>& lines_;
    bool captions_;
    double widest_;
    labels::ways ways_;
    labels placed_;
    std::vector<bool> named_;
};

}  // namespace

names name_lines(const rectangle& within, const rectangle& reserved, const std::vector<named_line>& lines) {
    if (lines.size() <= most_captions) {
        const names made = naming(within, reserved, lines, true).result();
        if (made.without_room == 0) return made;
    }
    return naming(within, reserved, lines, false).result();
}

}  // namespace oxhost::map
