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
#include <stdexcept>
#include <string>
#include <string_view>

#include "project/project.h"

namespace oxhost {

struct exchange_error : std::runtime_error {
    using runtime_error::runtime_error;
};

/// Where a line's projection text comes from, first match wins: `proj4` here, the feature's property
/// `proj4` (an empty one means "no projection"), the layer's coordinate system, none.
struct import_options {
    std::optional<std::string> proj4;
    bool not_profile = false;  ///< else the feature's property `profile` decides, else it is a profile
    /// Turns "EPSG:n" of a layer into a proj4 text that keeps its datum; an empty answer, or none at
    /// all, leaves it to GDAL.
    std::function<std::string(std::string_view)> crs_text;
};

struct import_counts {
    std::size_t scenes = 0;
    std::size_t skipped = 0;  ///< features that are no lines
};

class exchange {
public:
    virtual ~exchange() = default;

    /// Of GDAL, such as "3.6.2".
    virtual std::string version() const = 0;

    /// Hands every line of `source` to `sink`: layer by layer, in file order, multi-lines as numbered parts.
    /// A feature without geometry that carries `profile` is a scene without line. Captions are the
    /// property caption, name or title, else layer and feature number. Heights are dropped.
    virtual import_counts import_lines(const std::filesystem::path& source, const import_options& options,
                                       const std::function<void(new_scene&&)>& sink) = 0;

    /// Writes what `next` gives until it gives nothing to `out` (.geojson, .json, .gpkg, .shp), with fields
    /// caption, profile, proj4. `crs` is the proj4 text of all lines, to be the layer's coordinate
    /// system; empty when the scenes keep their own. An existing file is replaced after all went well;
    /// `project_file`, the project that the scenes come from, is refused as output.
    virtual void export_lines(const std::filesystem::path& out, const std::filesystem::path& project_file,
                              const std::string& crs,
                              const std::function<std::optional<new_scene>()>& next) = 0;
};

/// Throws exchange_error when the library beside this one cannot be loaded. Never unloaded.
exchange& load_exchange();

}  // namespace oxhost
