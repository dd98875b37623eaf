#pragma once
/// Captions beside the lines of one frame, none over another; what finds no room is left out.

#include <string>
#include <string_view>
#include <vector>

#include "base/line.h"
#include "map/svg.h"

namespace oxhost::map {

/// Lines are in the picture's units.
class captions {
public:
    struct caption {
        std::string text;
        rectangle place;

        double baseline() const { return place.y + place.height - 3; }
    };

    explicit captions(const rectangle& within) : within_(within) {}

    /// Captions that are added later keep off this box, or line.
    void avoid(const rectangle& box) { taken_.push_back(box); }
    void avoid(const polyline& path);
    void add(const std::string& text, const polyline& path);
    const std::vector<caption>& placed() const { return placed_; }

    /// About how long a text comes out.
    static double width_of(std::string_view text);

private:
    bool is_free(const rectangle& box) const;

    rectangle within_;
    std::vector<caption> placed_;
    std::vector<rectangle> taken_;
};

}  // namespace oxhost::map
