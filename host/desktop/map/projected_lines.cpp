#include "desktop/map/projected_lines.h"

#include <algorithm>
#include <cmath>

namespace oxhost::desktop {

projected_lines::projected_lines(document& shown) : document_(shown) {
    connect(&document_, &document::reset, this, &projected_lines::begin_again);
    connect(&idle_, &QTimer::timeout, this, &projected_lines::project_more);
    begin_again();
}

void projected_lines::set_system(const std::string& proj4) {
    system_ = proj4;
    begin_again();
}

void projected_lines::begin_again() {
    lines_.clear();
    projections_.clear();
    unplaced_.clear();
    lines_.resize(document_.opened() ? document_.opened()->size() : 0);
    done_ = 0;
    idle_.start(0);
    Q_EMIT grown();
}

/// Empty for a line that cannot be placed on this map.
polyline projected_lines::placed(const scene& subject) {
    if (!subject.line) return {};
    try {
        polyline places = document_.opened()->read_line(subject).xy;
        const auto way = transformation::between(subject.proj4, system_);
        if (way->is_needed() && way->apply(places)) places.clear();
        return places;
    } catch (const std::exception&) {
        return {};  // a text that PROJ refuses; the table shows which
    }
}

void projected_lines::project_more() {
    QElapsedTimer since;
    since.start();
    if (document_.changing()) return idle_.stop();  // all is read anew afterwards
    while (!complete() && since.elapsed() < 15) {
        const scene& subject = *document_.opened()->at(done_);
        line& made = lines_[done_];
        if (subject.proj4.empty()) {
            if (subject.line) unplaced_.push_back(done_);
        } else {
            const auto known = std::ranges::find(projections_, subject.proj4);
            made.colour = static_cast<int>(known - projections_.begin());
            if (known == projections_.end()) projections_.push_back(subject.proj4);
            made.places = placed(subject);
            for (const point& each : made.places) made.bounds.add(each);
        }
        ++done_;
    }
    if (complete()) idle_.stop();
    if (!complete() && told_.isValid() && told_.elapsed() < 250)
        return;  // drawing them costs more than a piece
    told_.start();
    Q_EMIT grown();
}

extent projected_lines::bounds() const {
    extent all;
    for (const line& each : lines_) all.add(each.bounds);
    return all;
}

const std::vector<point>& projected_lines::thinned(std::size_t which, double units_per_pixel) {
    line& drawn = lines_[which];
    const int level = static_cast<int>(std::floor(std::log2(units_per_pixel)));
    if (drawn.thinned_at == level) return drawn.thinned;
    drawn.thinned_at = level;
    drawn.thinned.clear();
    const double least = std::exp2(level) / 2;  // half a pixel at most, anywhere between two levels
    for (const point& each : drawn.places) {
        const bool far = drawn.thinned.empty() || std::abs(each.x - drawn.thinned.back().x) > least ||
                         std::abs(each.y - drawn.thinned.back().y) > least;
        if (far) drawn.thinned.push_back(each);
    }
    if (!drawn.places.empty() && drawn.thinned.back() != drawn.places.back())
        drawn.thinned.push_back(drawn.places.back());
    return drawn.thinned;
}

std::optional<point> projected_lines::in_scene(std::size_t which, point on_map) const {
    const scene* subject = document_.opened() ? document_.opened()->at(which) : nullptr;
    if (!subject || subject->proj4.empty()) return {};
    try {
        polyline places{on_map};
        const auto way = transformation::between(system_, subject->proj4);
        if (way->is_needed() && way->apply(places)) return {};
        return places.front();
    } catch (const std::exception&) {
        return {};
    }
}

}  // namespace oxhost::desktop
