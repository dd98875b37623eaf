#pragma once
/// The section lines of a document in the map's system, made piece by piece while the window lives, and
/// thinned for the scale at which they are drawn. [ui]

#include <QElapsedTimer>
#include <QObject>
#include <QPolygonF>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desktop/document.h"
#include "geodesy/transformation.h"

namespace oxhost::desktop {

/// Longitude, latitude on WGS 84: the map's first system, and the one that places are handed over in.
inline constexpr auto map_degrees = "+proj=longlat +datum=WGS84 +no_defs";

class projected_lines final : public QObject {
    Q_OBJECT
public:
    struct line {
        polyline places;  ///< in the map's system; empty while, or where, there is none
        extent bounds;
        int colour = -1;  ///< number of its projection; -1 without one
        int thinned_at = no_level;
        std::vector<point> thinned;
    };

    explicit projected_lines(document& shown);

    void set_system(const std::string& proj4);
    const std::string& system() const { return system_; }

    const std::vector<line>& lines() const { return lines_; }
    const std::vector<std::string>& projections() const { return projections_; }  ///< by colour
    const std::vector<std::size_t>& without_projection() const { return unplaced_; }
    bool complete() const { return done_ == lines_.size(); }
    extent bounds() const;  ///< of all that is there yet

    /// No vertex that is left out lies farther than half a pixel from one that stays.
    const std::vector<point>& thinned(std::size_t which, double units_per_pixel);
    /// A place of the line's own system there, to be shown; nothing where it has none.
    std::optional<point> in_scene(std::size_t which, point on_map) const;

Q_SIGNALS:
    void grown();  ///< more lines are there, or none of those from before

private:
    static constexpr int no_level = -10000;
    void begin_again();
    void project_more();
    polyline placed(const scene& subject);

    document& document_;
    std::string system_ = map_degrees;
    std::vector<line> lines_;
    std::vector<std::string> projections_;
    std::vector<std::size_t> unplaced_;
    std::size_t done_ = 0;
    QTimer idle_;
    QElapsedTimer told_;  ///< since the views heard of new lines
};

}  // namespace oxhost::desktop
