#pragma once
/// What of a frame is taken by lines, texts and leaders, in cells of a few units: a question costs what is
/// asked about, not what is there.

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "base/line.h"
#include "map/svg.h"

namespace oxhost::map {

/// From a line to its text.
struct leader {
    point from, to;
};

class taken_room {
public:
    using line_id = std::size_t;

    explicit taken_room(const rectangle& within);

    void take(const rectangle& box);
    void take(const polyline& path, line_id line);
    void take(const leader& drawn);

    /// Is a text possible here? Inside, over nothing, and not nearer than `distance` to another line than its
    /// own.
    bool is_free(const rectangle& box, line_id own, double distance) const;
    /// The same for a text that lies on its own line, and on others too if need be.
    bool is_free_on(const rectangle& box, line_id own, bool over_others) const;
    /// How many other lines a leader crosses; nothing when it runs over a text or another leader.
    std::optional<int> crossings(const leader& drawn, line_id own) const;

private:
    struct cell {
        bool text = false, leader = false;
        line_id line = none;
    };
    static constexpr line_id none = static_cast<line_id>(-1), several = none - 1;

    std::size_t index_at(const point& place) const;
    cell& at(const point& place) { return cells_[index_at(place)]; }
    const cell& at(const point& place) const { return cells_[index_at(place)]; }
    /// Goes through the places of the cells that a box touches, until `found` is true of one.
    static bool any(const rectangle& box, const std::function<bool(const point&)>& found);

    rectangle within_;
    std::size_t columns_, rows_;
    std::vector<cell> cells_;
    std::vector<leader> leaders_;
};

}  // namespace oxhost::map
