#pragma once
/// What is to be written where: an export as the exchange library takes it.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "project/fields.h"
#include "project/project.h"

namespace oxhost {

/// A layer to be written. Its lines share a coordinate system, which may be none.
struct export_layer {
    std::string name;
    std::string epsg;  ///< "EPSG:n" where the database has the very system, else empty
    std::string wkt;   ///< the system in full; empty: the file is to say nothing of a system
    bool heights = false, measures = false;  ///< some of its lines have them
};

struct layered_scene {
    std::size_t layer = 0;
    new_scene scene;
};

struct export_order {
    std::filesystem::path out;
    bool overwrite = false;            ///< else a file that is there by now is left, and the export refused
    std::vector<export_layer> layers;  ///< exactly one, but in a GeoPackage
    std::vector<field> fields;         ///< what the scenes' values are
    std::string prj, prj_companion;    ///< contents of a shapefile's NAME.prj and NAME.prj.pj4, or empty
    std::function<std::optional<layered_scene>()> next;  ///< one scene after the other, then nothing
};

}  // namespace oxhost
