#pragma once
/// How a project learns what its projection texts are to other GIS programs.
///
/// The store knows no projections; whoever opens projects says once how they are looked up. Where nobody
/// does, layers stay in undefined cartesian coordinates.

#include <functional>
#include <optional>
#include <string>

#include "base/line.h"

namespace oxhost {

/// A coordinate system as GeoPackage keeps it.
struct gis_system {
    std::string name;
    std::string wkt;               ///< WKT 1
    std::optional<int> epsg = {};  ///< its code, where it is an EPSG system
};

struct gis_directory {
    /// Nothing for a text that no program understands. `bounds` is where lines of that text lie, in its
    /// units.
    std::function<std::optional<gis_system>(const std::string& proj4, const extent& bounds)> look_up;
    /// Takes a line for the user.
    std::function<void(const std::string& line)> tell;
};

/// For all projects that are closed from now on.
void use_gis_directory(gis_directory directory);
const gis_directory& current_gis_directory();

}  // namespace oxhost
