#pragma once
/// The systems of the EPSG data set in which a line can be, each ready to place a point. [ui]

#include <optional>
#include <span>
#include <string>

#include "base/line.h"
#include "geodesy/place.h"
#include "geodesy/proj_context.h"

namespace oxhost {

class epsg_system {
public:
    epsg_system(const PROJ_CRS_INFO& info, const PJ* object);

    std::string code;   ///< "EPSG:28407"
    std::string name;   ///< "Pulkovo 1942 / Gauss-Kruger zone 7"
    std::string words;  ///< of its area of use
    std::string method;
    std::string ellipsoid;  ///< as proj4 spells it; empty for one by its axes
    geographic_area area;
    bool geographic = false;
    bool deprecated = false;

    /// The datum, as the name begins: "Pulkovo 1942".
    std::string datum() const { return name.substr(0, name.find(" / ")); }
    /// Longitude, latitude on its own datum; nothing for what its projection does not reach.
    std::optional<point> place(point coordinates) const;
    /// The largest difference of a scale there from 1: 0.01 is one percent.
    double distortion(point longitude_latitude) const;

private:
    std::string definition_;
    mutable pj_ptr projection_;  ///< made when it is first asked
};

/// All of them, without those that PROJ cannot compute or that have no area. Read once, some 0.3 s.
std::span<const epsg_system> epsg_systems();

}  // namespace oxhost
