#pragma once
/// What a layer says of its coordinate system.

#include <filesystem>
#include <string>

#include "exchange/exchange.h"
#include "exchange/import_notes.h"

class OGRLayer;

namespace oxhost {

struct layer_crs {
    std::string proj4;  ///< empty when it has none, or one that PROJ cannot tell
    std::string name;   ///< "EPSG:28407", or what the system calls itself; empty when it has none
    bool northing_first = false;

    /// For the user: what the text lost of it; told when the first scene takes the text.
    std::vector<std::string> remarks;
};

/// `source` is the file, or folder of files, that the layer is read from.
layer_crs read_layer_crs(const std::filesystem::path& source, OGRLayer& layer, const import_options& options);

}  // namespace oxhost
