#include <vector>

#include "base/files.h"
#include "base/text.h"
#include "exchange/gdal.h"
#include "exchange/writers.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t dbase_text_width = 254;  // bytes; longer texts would be cut

enum class format { geojson, geopackage, shapefile };

format format_of(const fs::path& out) {
    const std::string extension = lower(out.extension().string());
    if (extension == ".geojson" || extension == ".json") return format::geojson;
    if (extension == ".gpkg") return format::geopackage;
    if (extension == ".shp") return format::shapefile;
    throw exchange_error(out.string() + ": unknown format; write .geojson, .gpkg or .shp");
}

std::unique_ptr<line_writer> open_writer(format kind, const fs::path& out, const fs::path& file,
                                         const std::string& crs) {
    switch (kind) {
        case format::geojson:
            return write_geojson(out, file);
        case format::geopackage:
            return write_layer(out, file, "GPKG", 0, crs);
        case format::shapefile:
            return write_layer(out, file, "ESRI Shapefile", dbase_text_width, crs);
    }
    return nullptr;
}

/// Moves what was written in a folder beside the output into its place. A shapefile is several files of one
/// stem: older ones that the new set may lack go first.
void deliver(const temporary_folder& made, const fs::path& out, format kind) {
    if (kind == format::shapefile)
        for (const char* side : {".prj", ".cpg", ".qpj", ".qix", ".sbn", ".sbx"})
            fs::remove(fs::path(out).replace_extension(side));
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(made.path())) files.push_back(entry.path());
    for (const fs::path& each : files) fs::rename(each, fs::path(out).replace_filename(each.filename()));
}

/// Whether `out` may be replaced at all.
void check_output(const fs::path& out, const fs::path& project_file) {
    std::error_code ignored;
    if (fs::equivalent(out, project_file, ignored))
        throw exchange_error(out.string() + ": is the project itself");
    if (fs::exists(out) && !fs::is_regular_file(out)) throw exchange_error(out.string() + ": is not a file");
    for (const char* side : {"-wal", "-journal"})  // a log left beside a new database would be applied to it
        if (fs::exists(out.string() + side))
            throw exchange_error(out.string() + ": is open in another program");
}

}  // namespace

void export_to_file(const fs::path& out, const fs::path& project_file, const std::string& crs,
                    const std::function<std::optional<new_scene>()>& next) try {
    const format kind = format_of(out);
    check_output(out, project_file);
    const temporary_folder workshop(fs::absolute(out).parent_path() / ".oxhost-export-XXXXXX");
    const auto writer = open_writer(kind, out, workshop / out.filename(), crs);
    while (const std::optional<new_scene> scene = next()) writer->write(*scene);
    writer->finish();
    deliver(workshop, out, kind);
} catch (const file_error& e) {
    throw exchange_error(out.string() + ": cannot be written into its folder: " + e.what());
} catch (const fs::filesystem_error& e) {
    throw exchange_error(out.string() + ": cannot be written: " + e.code().message());
}

}  // namespace oxhost
