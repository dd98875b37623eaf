#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "base/language.h"
#include "base/numbers.h"
#include "geodesy/measure.h"
#include "geodesy/transformation.h"
#include "run/reprojection.h"

namespace oxhost::run {

namespace {

constexpr double noticeable = 0.01;
constexpr double harmless =
    noticeable / 4;  // in sampled places: the lines between them stay below noticeable

/// What the target does to short lengths at a place of the source: in three directions, since a projection
/// may stretch one and shrink another. Nothing where it has no place.
std::optional<double> stretch_at(point place, const transformation& way) {
    const double step = 100 / way.target().metres_per_unit;
    polyline there{place};
    if (way.apply(there)) return {};
    const point at = there.front();
    return length_distortion({{at.x + step, at.y}, at, {at.x, at.y + step}, {at.x + step, at.y}},
                             way.target().text);
}

/// No line inside can be noticeably stretched, by a net of places with `parts` meshes along each side. The
/// meshes' own lengths tell where the target is torn.
bool is_harmless(const extent& area, const transformation& way, int parts) {
    if (way.source().geographic && area.width() > 180) return false;  // lines may cross the seam
    for (const bool upright : {false, true})
        for (int i = 0; i <= parts; ++i) {
            polyline thread;
            for (int k = 0; k <= parts; ++k) {
                const double x = area.width() * (upright ? i : k) / parts;
                const double y = area.height() * (upright ? k : i) / parts;
                thread.push_back({area.min_x + x, area.min_y + y});
                const auto stretch = upright ? stretch_at(thread.back(), way) : 0;  // once for a crossing
                if (!stretch || !(*stretch < harmless)) return false;
            }
            if (way.apply(thread)) return false;
            const auto stretch = length_distortion(thread, way.target().text);
            if (!stretch || !(*stretch < harmless)) return false;
        }
    return true;
}

class lengths {
public:
    lengths(project& opened, const std::string& target) : opened_(opened), target_(target) {}

    /// Scenes of one source. Most runs end at their common area, most others at the scenes' own.
    void look_at(const std::string& source, const std::vector<const scene*>& scenes) {
        const auto way = transformation::between(source, target_);
        if (!way->is_needed()) return;
        lines_ += scenes.size();
        extent all;
        for (const scene* each : scenes) all.add(each->line->bounds);
        if (all.empty() || is_harmless(all, *way, 8)) return;
        for (const scene* each : scenes)
            if (!is_harmless(each->line->bounds, *way, 2)) measure(*each, *way);
    }

    std::optional<std::string> told() const {
        if (stretched_ == 0) return {};
        const double share = worst_ < 0.1 ? std::round(1000 * worst_) / 10 : std::round(100 * worst_);
        const std::string counts = std::to_string(stretched_), all = std::to_string(lines_);
        const std::string name = name_of(*worst_scene_), percent = number_text(share) + " %";
        return std::string(
            in_language("длины искажены более чем на 1 % у линий: " + counts + " из " + all +
                            "; сильнее всего у " + name + ", на " + percent,
                        counts + " of " + all + (stretched_ == 1 ? " lines is" : " lines are") +
                            " stretched by more than 1 %; the worst, " + name + ", by " + percent));
    }

private:
    void measure(const scene& subject, const transformation& way) {
        polyline line = opened_.read_line(subject).xy;
        if (way.apply(line)) return;
        const double stretch = length_distortion(line, target_).value_or(0);
        if (!(stretch > noticeable)) return;
        ++stretched_;
        if (!(stretch > worst_)) return;
        worst_ = stretch;
        worst_scene_ = &subject;
    }

    project& opened_;
    const std::string& target_;
    std::size_t lines_ = 0, stretched_ = 0;
    double worst_ = 0;
    const scene* worst_scene_ = nullptr;
};

}  // namespace

std::optional<std::string> advise_on_lengths(project& opened, const std::vector<scene_result>& scenes,
                                             const std::string& target) {
    if (target.empty() || crs_of(target)->geographic) return {};
    std::map<std::string, std::vector<const scene*>> by_source;
    for (const scene_result& each : scenes)
        if (!each.source.empty() && each.subject->line) by_source[each.source].push_back(each.subject);
    lengths judged(opened, target);
    for (const auto& [source, members] : by_source) {
        try {
            judged.look_at(source, members);
        } catch (const std::invalid_argument&) {  // a text that PROJ refuses: its scenes will fail
        }
    }
    return judged.told();
}

}  // namespace oxhost::run
