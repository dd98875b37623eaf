#pragma once
/// Captions beside the lines of one frame, none over another; what finds no room is left out.

#include <string>
#include <string_view>
#include <vector>

#include "map/frame.h"

namespace oxhost::app {

class map_captions {
public:
    struct caption {
        std::string text;
        double x, y;  ///< where its baseline begins
    };

    explicit map_captions(const rectangle& within) : within_(within) {}

    void avoid(const rectangle& box) { taken_.push_back(box); }
    /// Captions keep off this line. Paths are in the picture's units.
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

}  // namespace oxhost::app
