#pragma once
/// The formats that lines are written in, as file names tell them.

#include <filesystem>
#include <vector>

namespace oxhost {

enum class export_format { geojson, geopackage, shapefile };

/// By the extension; a stream takes GeoJSON whatever its name. Throws exchange_error for what is no format of
/// ours.
export_format format_of(const std::filesystem::path& out);

/// Every file that an export to `out` may write or remove, `out` first.
std::vector<std::filesystem::path> files_of(const std::filesystem::path& out);

}  // namespace oxhost
