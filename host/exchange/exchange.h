#pragma once
/// Lines in and out of common vector formats: GeoJSON, GeoPackage, Shapefile and what else GDAL reads.
///
/// The implementation lives in liboxhost_exchange.so, which alone needs GDAL and is mapped by
/// load_exchange() at the first import or export; nothing else of the host pays for it.
///
/// Coordinates are x = easting or longitude, y = northing or latitude, whatever order a source keeps.
/// Errors are exchange_error, one line that begins with the file.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/export_order.h"
#include "project/project.h"

namespace oxhost {

struct exchange_error : std::runtime_error {
    using runtime_error::runtime_error;
};

/// Columns of a table whose rows are points of lines; an empty one is found by its common names, if it is
/// there.
struct point_columns {
    std::string line, order, x, y, z;
};

/// Where a line's projection text comes from, first match wins: `proj4` here, the feature's property
/// `proj4` (an empty one means "no projection"), the layer's coordinate system, none.
struct import_options {
    std::optional<std::string> proj4;
    bool not_profile = false;  ///< else the feature's property `profile` decides, else it is a profile
    std::string layer;         ///< the only one to be read; empty reads all
    point_columns points;
    /// Turns what a layer says of its coordinate system, "EPSG:n" or WKT, into a proj4 text that keeps its
    /// datum; an empty answer, or none at all, leaves it to GDAL.
    std::function<std::string(std::string_view definition)> crs_text;
    /// In one line what the text lost of the definition; empty when nothing.
    std::function<std::string(std::string_view definition, std::string_view proj4)> crs_difference;
    /// The text of a file `NAME.prj`, its companion taken into account; empty when it has none.
    std::function<std::string(const std::filesystem::path&)> prj_text;
};

/// Takes scenes layer by layer.
class scene_taker {
public:
    virtual ~scene_taker() = default;
    /// What the values of the scenes that follow are. Answers the names of the columns they go to.
    virtual std::vector<std::string> begin_layer(std::span<const field> fields) = 0;
    virtual void take(const new_scene& scene) = 0;
};

struct import_report {
    std::size_t scenes = 0;
    /// What was dropped or changed, by reason with counts: one line, empty when nothing was.
    std::string losses;
    std::vector<std::string> remarks;  ///< a line each: columns chosen and renamed, what projections lost
};

class exchange {
public:
    virtual ~exchange() = default;

    /// Of GDAL, such as "3.6.2".
    virtual std::string version() const = 0;

    /// Hands every line of `source` to `taker`: layer by layer, in file order, several lines of one feature
    /// as numbered parts, each with heights, measures and the feature's attributes. Captions are the property
    /// caption, name or title, else layer and feature number. A feature without geometry that carries
    /// `profile` is a scene without line. The attributes `source_layer`, `source_fid` and `source_crs` (its
    /// code or name) tell where a scene came from, unless the layer has them from an earlier import.
    ///
    /// Tables without geometry are read as points of lines when they have columns for that; layers of points
    /// when `points.line` is given.
    virtual import_report import_lines(const std::filesystem::path& source, const import_options& options,
                                       scene_taker& taker) = 0;

    /// Writes the scenes with fields caption, profile, proj4 and those of the order. What stood in the file's
    /// place is replaced after all went well, and comes back when the replacing fails half-way. Answers what
    /// the format has changed or left out, one line each.
    virtual std::vector<std::string> export_lines(const export_order& order) = 0;
};

/// Throws exchange_error when the library beside this one cannot be loaded. Never unloaded.
exchange& load_exchange();

}  // namespace oxhost
