#pragma once
/// Texts beside the lines of one frame, or at the end of a leader where there is no room beside them; none
/// over another, over a line, or beyond the frame.

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "map/bundles.h"
#include "map/taken_room.h"

namespace oxhost::map {

struct text_style {
    std::string_view look;  ///< class of the element; a literal
    double size;
};

/// Places are in the picture's units.
class labels {
public:
    struct label {
        std::string text;
        std::string_view look;
        rectangle place;
        std::optional<leader> led;

        point baseline() const { return {place.x + 2, place.y + place.height - 3.5}; }
    };

    explicit labels(const rectangle& within) : room_(within) {}

    /// Texts that are added later keep off this box, or line.
    void avoid(const rectangle& box) { room_.take(box); }
    void avoid(const polyline& path, std::size_t line) { room_.take(path, line); }

    /// Where a text may go: beside its line always.
    struct ways {
        bool leader = true;
        bool on_line = false;  ///< over its own line, at last over others too
    };
    /// Names `line`, whose path is not empty. False when there is no room.
    bool add(std::string_view text, const text_style& style, const polyline& path, std::size_t line,
             ways allowed);
    /// Names the lines of a bundle by a column of texts with leaders; all of them or, without room, none.
    bool add_column(const std::vector<std::string_view>& texts, const text_style& style, const bundle& lines);
    const std::vector<label>& placed() const { return placed_; }

private:
    /// As a column at that place, its top text first, if there is room for all.
    std::optional<std::vector<label>> column(const std::vector<std::string_view>& texts,
                                             const text_style& style, const bundle& lines, point top) const;
    void keep(label made);
    std::optional<rectangle> beside(const std::vector<point>& anchors, point size, std::size_t line) const;
    std::optional<rectangle> on_line(const std::vector<point>& anchors, point size, std::size_t line,
                                     bool over_others) const;
    std::optional<std::pair<rectangle, leader>> led(const std::vector<point>& anchors, point size,
                                                    std::size_t line, double longest) const;

    taken_room room_;
    std::vector<label> placed_;
};

/// With its leader.
std::string element(const labels::label& placed);

}  // namespace oxhost::map
