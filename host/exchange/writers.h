#pragma once
/// A file of lines being written. Both kinds throw exchange_error in the name of `out`, where the file
/// will end up; `file` is where it is written.

#include <cstddef>
#include <memory>

#include "exchange/exchange.h"

namespace oxhost {

class line_writer {
public:
    virtual ~line_writer() = default;
    virtual void write(const new_scene& scene) = 0;
    virtual void finish() = 0;  ///< last call; what it leaves on the disk is complete
};

/// GeoJSON in the scenes' own coordinates, which reads back to the last bit. (GDAL's writer rounds.)
std::unique_ptr<line_writer> write_geojson(const std::filesystem::path& out,
                                           const std::filesystem::path& file);

/// A format that keeps a table with a layer's coordinate system; texts above `text_limit` bytes are
/// refused, 0 is no limit.
std::unique_ptr<line_writer> write_layer(const std::filesystem::path& out, const std::filesystem::path& file,
                                         const char* driver, std::size_t text_limit, const std::string& crs);

}  // namespace oxhost
