#include <gdal_priv.h>
#include <ogrsf_frmts.h>
#include <stdlib.h>

#include <array>
#include <vector>

#include "exchange/drivers.h"
#include "exchange/gdal_guard.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t dbase_text_width = 254;  // bytes; longer texts would be cut

struct format {
    std::string_view extension;
    const char* driver;
    std::size_t text_limit;  ///< bytes; 0 = none
    std::vector<const char*> dataset_options;
    std::vector<const char*> layer_options;
};

const format& format_of(const fs::path& out) {
    static const std::array formats{
        format{".geojson", "GeoJSON", 0, {}, {"SIGNIFICANT_FIGURES=17"}},
        format{".json", "GeoJSON", 0, {}, {"SIGNIFICANT_FIGURES=17"}},
        format{".gpkg", "GPKG", 0, {}, {"GEOMETRY_NAME=geom", "SPATIAL_INDEX=NO"}},
        format{".shp", "ESRI Shapefile", dbase_text_width, {}, {"ENCODING=UTF-8"}},
    };
    std::string extension = out.extension();
    for (char& c : extension) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const format& each : formats)
        if (each.extension == extension) return each;
    throw exchange_error(out.string() + ": unknown format; write .geojson, .gpkg or .shp");
}

std::vector<char*> option_list(const std::vector<const char*>& options) {
    std::vector<char*> list;
    for (const char* option : options) list.push_back(const_cast<char*>(option));
    list.push_back(nullptr);
    return list;
}

/// A folder beside the output in which it is written; moved into place as a whole at the end.
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

    /// A shapefile is several files of one stem: older ones that the new set lacks go first.
    void deliver(bool several) const {
        if (several)
            for (const char* side : {".prj", ".cpg", ".qpj", ".qix", ".sbn", ".sbx"})
                fs::remove(fs::path(out_).replace_extension(side));
        std::vector<fs::path> made;
        for (const auto& entry : fs::directory_iterator(folder_)) made.push_back(entry.path());
        for (const fs::path& each : made) {
            fs::path place = out_;
            if (each.filename() != out_.filename()) place.replace_filename(each.filename());
            fs::rename(each, place);
        }
    }

private:
    fs::path out_;
    fs::path folder_;
};

class layer_writer {
public:
    layer_writer(const fs::path& out, const fs::path& file, const format& as, const std::string& crs)
        : out_(out), as_(as) {
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(as.driver);
        if (!driver) reports_.refuse(out, std::string("GDAL has no driver ") + as.driver);
        data_.reset(
            driver->Create(file.c_str(), 0, 0, 0, GDT_Unknown, option_list(as.dataset_options).data()));
        if (!data_) reports_.refuse(out, "cannot be written");
        OGRSpatialReference reference;
        reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        if (!crs.empty() && reference.importFromProj4(crs.c_str()) != OGRERR_NONE)
            reports_.refuse(out, "GDAL does not take the projection " + crs);
        layer_ = data_->CreateLayer(out.stem().c_str(), crs.empty() ? nullptr : &reference, wkbLineString,
                                    option_list(as.layer_options).data());
        if (!layer_) reports_.refuse(out, "cannot be written");
        add_field("caption", OFTString, OFSTNone);
        add_field("profile", OFTInteger, as.text_limit ? OFSTNone : OFSTBoolean);
        add_field("proj4", OFTString, OFSTNone);
        begun_ = layer_->StartTransaction() == OGRERR_NONE;
    }

    void write(const new_scene& scene) {
        for (const std::string* text : {&scene.caption, &scene.proj4})
            if (as_.text_limit && text->size() > as_.text_limit)
                reports_.refuse(out_, "a shapefile has no room for the text \"" + *text + "\"");
        const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer_->GetLayerDefn()));
        feature->SetField("caption", scene.caption.c_str());
        feature->SetField("profile", int{scene.profile});
        feature->SetField("proj4", scene.proj4.c_str());
        if (scene.line) {
            auto line = std::make_unique<OGRLineString>();
            line->setNumPoints(static_cast<int>(scene.line->size()), FALSE);
            for (std::size_t i = 0; i < scene.line->size(); ++i)
                line->setPoint(static_cast<int>(i), (*scene.line)[i].x, (*scene.line)[i].y);
            feature->SetGeometryDirectly(line.release());
        }
        if (layer_->CreateFeature(feature.get()) != OGRERR_NONE || reports_.failed())
            reports_.refuse(out_, "\"" + scene.caption + "\" cannot be written");
    }

    void finish() {
        if (begun_ && layer_->CommitTransaction() != OGRERR_NONE) reports_.refuse(out_, "cannot be written");
        data_.reset();
        if (reports_.failed()) reports_.refuse(out_, "cannot be written");
    }

private:
    void add_field(const char* name, OGRFieldType type, OGRFieldSubType subtype) {
        OGRFieldDefn field(name, type);
        field.SetSubType(subtype);
        if (type == OFTString && as_.text_limit) field.SetWidth(static_cast<int>(as_.text_limit));
        if (layer_->CreateField(&field) != OGRERR_NONE) reports_.refuse(out_, "cannot be written");
    }

    gdal_guard reports_;
    const fs::path& out_;
    const format& as_;
    GDALDatasetUniquePtr data_;
    OGRLayer* layer_ = nullptr;
    bool begun_ = false;
};

}  // namespace

void export_with_gdal(const fs::path& out, const fs::path& project_file, const std::string& crs,
                      const std::function<std::optional<new_scene>()>& next) try {
    const format& as = format_of(out);
    std::error_code ignored;
    if (fs::equivalent(out, project_file, ignored))
        throw exchange_error(out.string() + ": is the project itself");
    if (fs::exists(out) && !fs::is_regular_file(out)) throw exchange_error(out.string() + ": is not a file");
    for (const char* side : {"-wal", "-journal"})
        if (fs::exists(out.string() + side))
            throw exchange_error(out.string() + ": is open in another program");
    const workshop place(out);
    layer_writer writer(out, place.file(), as, crs);
    while (const std::optional<new_scene> scene = next()) writer.write(*scene);
    writer.finish();
    place.deliver(as.text_limit > 0);
} catch (const fs::filesystem_error& e) {
    throw exchange_error(out.string() + ": cannot be written: " + e.code().message());
}

}  // namespace oxhost
