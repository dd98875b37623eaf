#pragma once
/// Which scenes an export writes, in which layers, and in which coordinates.

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "exchange/export_order.h"
#include "project/project.h"
#include "run/request.h"

namespace oxhost::run {

/// A layer of the export and what its lines are brought into.
struct planned_layer {
    export_layer written;
    std::string proj4;       ///< empty: lines without projection, left as they are
    std::size_t scenes = 0;  ///< how many go into it
    std::size_t lines = 0;   ///< those of them that have vertices
};

struct export_plan {
    std::vector<scene*> scenes;
    std::vector<std::size_t> layer_of;  ///< of each scene
    std::vector<planned_layer> layers;
    bool transforms =
        false;             ///< lines are brought into their layer's system, else they keep their coordinates
    bool unwraps = false;  ///< longitudes go on beyond 180 degrees where a line does
    std::string prj, companion;        ///< contents of a shapefile's NAME.prj and NAME.prj.pj4, or empty
    std::vector<std::string> remarks;  ///< what the user should know of the layers, one line each
};

/// With a target all lines go into it. Without, lines keep their projections, each of which makes a layer of
/// a GeoPackage; GeoJSON is longitude and latitude on WGS 84, as its standard says. Lines without projection
/// make a layer of their own that says nothing of a system. Scenes without vertices go where their text does,
/// else into the first layer. Throws `failure` (refused) for what a format of one layer cannot take, with
/// count and hint.
export_plan plan_export(std::vector<scene*> scenes, const std::filesystem::path& out,
                        const std::optional<target>& goal);

}  // namespace oxhost::run
