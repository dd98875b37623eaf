#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include "base/language.h"
#include "exchange/gdal.h"
#include "exchange/writers.h"
#include "exchange/written_attributes.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

OGRwkbGeometryType type_of(const export_layer& layer) {
    return OGR_GT_SetModifier(wkbLineString, layer.heights, layer.measures);
}

class layer_writer final : public line_writer {
public:
    layer_writer(const export_order& order, const fs::path& file, export_format format, losses& lost)
        : order_(order), format_(format), lost_(lost) {
        const char* name = format == export_format::shapefile ? "ESRI Shapefile" : "GPKG";
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(name);
        if (!driver) refuse(words("в GDAL нет драйвера ", "GDAL has no driver ") + name);
        data_.reset(driver->Create(file.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
        if (!data_) refuse(cannot_write());
        layers_.reserve(order.layers.size());
        for (const export_layer& each : order.layers) add_layer(each);
        begun_ = data_->TestCapability(ODsCTransactions) && data_->StartTransaction() == OGRERR_NONE;
    }

    void write(const layered_scene& placed) override {
        const new_scene& scene = placed.scene;
        open_layer& to = layers_.at(placed.layer);
        values_.assign({scene.caption, std::int64_t{scene.profile}, scene.proj4});
        values_.insert(values_.end(), scene.values.begin(), scene.values.end());
        check_room();
        const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(to.layer->GetLayerDefn()));
        to.attributes.set(*feature, values_);
        if (scene.line) feature->SetGeometryDirectly(geometry_of(*scene.line, to).release());
        if (to.layer->CreateFeature(feature.get()) != OGRERR_NONE || reports_.failed())
            refuse('"' + scene.caption + "\": " + cannot_write());
    }

    void finish() override {
        if (begun_ && data_->CommitTransaction() != OGRERR_NONE) refuse(cannot_write());
        for (const open_layer& each : layers_) allow_flat_lines(each);
        data_.reset();
        if (reports_.failed()) refuse(cannot_write());
    }

private:
    struct open_layer {
        const export_layer* as;
        OGRLayer* layer;
        written_attributes attributes;
        bool flat_lines = false;  ///< some lines lack heights or measures that others have
    };

    static std::string cannot_write() { return words("запись невозможна", "cannot be written"); }
    [[noreturn]] void refuse(const std::string& what) const { reports_.refuse(order_.out, what); }

    void add_layer(const export_layer& wanted) {
        OGRSpatialReference reference;
        reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        const std::string& system = wanted.epsg.empty() ? wanted.wkt : wanted.epsg;
        // A shapefile's system is told by files that come with the order.
        const bool told = !system.empty() && format_ != export_format::shapefile;
        if (told && reference.SetFromUserInput(system.c_str()) != OGRERR_NONE)
            refuse(words("GDAL не принимает проекцию ", "GDAL does not take the projection ") + system);
        CPLStringList options;
        if (format_ == export_format::shapefile)
            options.SetNameValue("ENCODING", "UTF-8");
        else
            options.SetNameValue("SPATIAL_INDEX", "NO");
        OGRLayer* layer = data_->CreateLayer(wanted.name.c_str(), told ? &reference : nullptr,
                                             type_of(wanted), options.List());
        if (!layer) refuse(cannot_write());
        open_layer& made = layers_.emplace_back(open_layer{&wanted, layer, {*layer, format_, lost_}});
        fields_ = {
            {"caption", field_type::text}, {"profile", field_type::boolean}, {"proj4", field_type::text}};
        fields_.insert(fields_.end(), order_.fields.begin(), order_.fields.end());
        for (const field& each : fields_)
            if (!made.attributes.add(each))
                refuse(words("нет места для поля ", "has no room for the field ") + each.name);
    }

    void check_room() const {
        const std::size_t limit = text_limit(format_);
        for (const field_value& each : values_)
            if (const auto* text = std::get_if<std::string>(&each); limit && text && text->size() > limit)
                refuse(words("нет места для текста \"", "has no room for the text \"") + *text + '"');
    }

    std::unique_ptr<OGRLineString> geometry_of(const section_line& line, open_layer& to) {
        auto made = std::make_unique<OGRLineString>();
        const bool heights = !line.z.empty(), measures = !line.m.empty();
        if (heights) made->set3D(TRUE);
        if (measures) made->setMeasured(TRUE);
        made->setNumPoints(static_cast<int>(line.xy.size()), FALSE);
        for (std::size_t i = 0; i < line.xy.size(); ++i) {
            const int vertex = static_cast<int>(i);
            made->setPoint(vertex, line.xy[i].x, line.xy[i].y);
            if (heights) made->setZ(vertex, line.z[i]);
            if (measures) made->setM(vertex, line.m[i]);
        }
        if (heights >= to.as->heights && measures >= to.as->measures) return made;
        to.flat_lines = true;
        if (format_ != export_format::shapefile || line.xy.empty()) return made;
        if (to.as->heights && !heights)
            lost_.add(
                words("линии без высот, записаны с высотой 0", "lines without heights, written at height 0"));
        if (to.as->measures && !measures)
            lost_.add(
                words("линии без мер, записаны с мерой 0", "lines without measures, written at measure 0"));
        made->set3D(to.as->heights);
        made->setMeasured(to.as->measures);
        return made;
    }

    /// A GeoPackage tells whether heights and measures must or may be there.
    void allow_flat_lines(const open_layer& in) {
        if (format_ != export_format::geopackage || !in.flat_lines) return;
        data_->FlushCache();
        std::string name;
        for (const char c : in.as->name) name.append(c == '\'' ? 2 : 1, c);
        const std::string sql =
            "UPDATE gpkg_geometry_columns SET z=min(2*z,2), m=min(2*m,2) WHERE table_name='" + name + '\'';
        data_->ReleaseResultSet(data_->ExecuteSQL(sql.c_str(), nullptr, nullptr));
    }

    gdal_guard reports_;
    const export_order& order_;
    export_format format_;
    losses& lost_;
    GDALDatasetUniquePtr data_;
    std::vector<open_layer> layers_;
    std::vector<field> fields_;
    std::vector<field_value> values_;
    bool begun_ = false;
};

}  // namespace

std::unique_ptr<line_writer> write_layers(const export_order& order, const fs::path& file,
                                          export_format format, losses& lost) {
    return std::make_unique<layer_writer>(order, file, format, lost);
}

}  // namespace oxhost
