#include <stdlib.h>

#include <vector>

#include "exchange/drivers.h"
#include "exchange/writer.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t dbase_text_width = 254;  // bytes; longer texts would be cut

enum class format { geojson, geopackage, shapefile };

format format_of(const fs::path& out) {
    std::string extension = out.extension();
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (extension == ".geojson" || extension == ".json") return format::geojson;
    if (extension == ".gpkg") return format::geopackage;
    if (extension == ".shp") return format::shapefile;
    throw exchange_error(out.string() + ": unknown format; write .geojson, .gpkg or .shp");
}

std::unique_ptr<line_writer> open_writer(format as, const fs::path& out, const fs::path& file,
                                         const std::string& crs) {
    switch (as) {
        case format::geojson:
            return write_geojson(out, file);
        case format::geopackage:
            return write_layer(out, file, "GPKG", 0, crs);
        case format::shapefile:
            return write_layer(out, file, "ESRI Shapefile", dbase_text_width, crs);
    }
    return nullptr;
}

/// A folder beside the output in which it is written; what is ready moves into place at the end.
class workshop {
public:
    explicit workshop(const fs::path& out) : out_(out) {
        std::string name = (fs::absolute(out).parent_path() / ".oxhost-export-XXXXXX").string();
        if (!mkdtemp(name.data())) throw exchange_error(out.string() + ": cannot be written into its folder");
        folder_ = name;
    }
    workshop(const workshop&) = delete;
    workshop& operator=(const workshop&) = delete;
    ~workshop() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }

    fs::path file() const { return folder_ / out_.filename(); }

    /// A shapefile is several files of one stem: older ones that the new set may lack go first.
    void deliver(format as) const {
        if (as == format::shapefile)
            for (const char* side : {".prj", ".cpg", ".qpj", ".qix", ".sbn", ".sbx"})
                fs::remove(fs::path(out_).replace_extension(side));
        std::vector<fs::path> made;
        for (const auto& entry : fs::directory_iterator(folder_)) made.push_back(entry.path());
        for (const fs::path& each : made) fs::rename(each, fs::path(out_).replace_filename(each.filename()));
    }

private:
    fs::path out_;
    fs::path folder_;
};

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
    const format as = format_of(out);
    check_output(out, project_file);
    const workshop place(out);
    const auto writer = open_writer(as, out, place.file(), crs);
    while (const std::optional<new_scene> scene = next()) writer->write(*scene);
    writer->finish();
    place.deliver(as);
} catch (const fs::filesystem_error& e) {
    throw exchange_error(out.string() + ": cannot be written: " + e.code().message());
}

}  // namespace oxhost
