#pragma once
/// Files of lines being written. All kinds throw exchange_error in the name of the order's output, where the
/// file will end up; `file` is where it is written. The order outlives its writer.

#include <filesystem>
#include <memory>

#include "exchange/export_order.h"
#include "exchange/formats.h"
#include "exchange/losses.h"

namespace oxhost {

class line_writer {
public:
    virtual ~line_writer() = default;
    virtual void write(const layered_scene& placed) = 0;
    virtual void finish() = 0;  ///< last call; what it leaves on the disk is complete
};

/// In the coordinates given, which read back to the last bit. (GDAL's writer rounds.) A layer with a system
/// gets the member `crs`; without one the standard says longitude and latitude.
std::unique_ptr<line_writer> write_geojson(const export_order& order, const std::filesystem::path& file,
                                           losses& lost);

/// A format that keeps tables. Texts that have no room are refused.
std::unique_ptr<line_writer> write_layers(const export_order& order, const std::filesystem::path& file,
                                          export_format format, losses& lost);

}  // namespace oxhost
