#include "exchange/formats.h"

#include "base/files.h"
#include "base/language.h"
#include "base/text.h"
#include "exchange/exchange.h"

namespace oxhost {

namespace fs = std::filesystem;

export_format format_of(const fs::path& out) {
    const std::string extension = lower(out.extension().string());
    const bool geojson = extension == ".geojson" || extension == ".json";
    if (geojson || is_stream(out)) return export_format::geojson;
    if (extension == ".gpkg") return export_format::geopackage;
    if (extension == ".shp") return export_format::shapefile;
    throw exchange_error(out.string() + words(": неизвестный формат; возможны .geojson, .gpkg и .shp",
                                              ": unknown format; write .geojson, .gpkg or .shp"));
}

std::vector<fs::path> files_of(const fs::path& out) {
    std::vector<fs::path> files{out};
    if (format_of(out) == export_format::shapefile)
        for (const char* extension :
             {".shx", ".dbf", ".cpg", ".prj", ".prj.pj4", ".qpj", ".qix", ".sbn", ".sbx"})
            files.push_back(fs::path(out).replace_extension() += extension);
    return files;
}

}  // namespace oxhost
