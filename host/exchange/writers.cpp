#include "exchange/writers.h"

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "exchange/gdal.h"

namespace oxhost {

namespace {

/// One feature a line.
class geojson_writer final : public line_writer {
public:
    geojson_writer(const std::filesystem::path& out, const std::filesystem::path& file)
        : out_(out), to_(file) {
        to_ << R"({"type": "FeatureCollection", "features": [)";
    }

    void write(const new_scene& scene) override {
        using json = nlohmann::ordered_json;
        json geometry;
        if (scene.line) {
            json coordinates = json::array();
            for (const point& p : scene.line->xy) coordinates.push_back({p.x, p.y});
            geometry = {{"type", "LineString"}, {"coordinates", std::move(coordinates)}};
        }
        const json feature{
            {"type", "Feature"},
            {"properties", {{"caption", scene.caption}, {"profile", scene.profile}, {"proj4", scene.proj4}}},
            {"geometry", std::move(geometry)}};
        to_ << separator_ << feature.dump(-1, ' ', false, json::error_handler_t::replace);
        separator_ = ",\n";
    }

    void finish() override {
        to_ << "\n]}\n";
        to_.close();
        if (!to_) throw exchange_error(out_.string() + ": cannot be written");
    }

private:
    const std::filesystem::path out_;
    std::ofstream to_;
    const char* separator_ = "\n";
};

}  // namespace

std::unique_ptr<line_writer> write_geojson(const std::filesystem::path& out,
                                           const std::filesystem::path& file) {
    return std::make_unique<geojson_writer>(out, file);
}

namespace {

namespace fs = std::filesystem;

class layer_writer final : public line_writer {
public:
    layer_writer(const fs::path& out, const fs::path& file, const char* driver_name, std::size_t text_limit,
                 const std::string& crs)
        : out_(out), text_limit_(text_limit) {
        OGRSpatialReference reference;
        reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        if (!crs.empty() && reference.importFromProj4(crs.c_str()) != OGRERR_NONE)
            reports_.refuse(out, "GDAL does not take the projection " + crs);
        GDALDriver* driver = GetGDALDriverManager()->GetDriverByName(driver_name);
        if (!driver) reports_.refuse(out, std::string("GDAL has no driver ") + driver_name);
        data_.reset(driver->Create(file.c_str(), 0, 0, 0, GDT_Unknown, nullptr));
        if (!data_) reports_.refuse(out, "cannot be written");
        CPLStringList options;
        options.SetNameValue(text_limit ? "ENCODING" : "SPATIAL_INDEX", text_limit ? "UTF-8" : "NO");
        layer_ = data_->CreateLayer(out.stem().c_str(), crs.empty() ? nullptr : &reference, wkbLineString,
                                    options.List());
        if (!layer_) reports_.refuse(out, "cannot be written");
        add_field("caption", OFTString, OFSTNone);
        add_field("profile", OFTInteger, text_limit ? OFSTNone : OFSTBoolean);
        add_field("proj4", OFTString, OFSTNone);
        begun_ = layer_->StartTransaction() == OGRERR_NONE;
    }

    void write(const new_scene& scene) override {
        for (const std::string* text : {&scene.caption, &scene.proj4})
            if (text_limit_ && text->size() > text_limit_)
                reports_.refuse(out_, "has no room for the text \"" + *text + "\"");
        const OGRFeatureUniquePtr feature(OGRFeature::CreateFeature(layer_->GetLayerDefn()));
        feature->SetField("caption", scene.caption.c_str());
        feature->SetField("profile", int{scene.profile});
        feature->SetField("proj4", scene.proj4.c_str());
        if (scene.line) {
            auto line = std::make_unique<OGRLineString>();
            line->setNumPoints(static_cast<int>(scene.line->xy.size()), FALSE);
            for (std::size_t i = 0; i < scene.line->xy.size(); ++i)
                line->setPoint(static_cast<int>(i), scene.line->xy[i].x, scene.line->xy[i].y);
            feature->SetGeometryDirectly(line.release());
        }
        if (layer_->CreateFeature(feature.get()) != OGRERR_NONE || reports_.failed())
            reports_.refuse(out_, "\"" + scene.caption + "\" cannot be written");
    }

    void finish() override {
        if (begun_ && layer_->CommitTransaction() != OGRERR_NONE) reports_.refuse(out_, "cannot be written");
        data_.reset();
        if (reports_.failed()) reports_.refuse(out_, "cannot be written");
    }

private:
    void add_field(const char* name, OGRFieldType type, OGRFieldSubType subtype) {
        OGRFieldDefn field(name, type);
        field.SetSubType(subtype);
        if (type == OFTString && text_limit_) field.SetWidth(static_cast<int>(text_limit_));
        if (layer_->CreateField(&field) != OGRERR_NONE) reports_.refuse(out_, "cannot be written");
    }

    gdal_guard reports_;
    const fs::path out_;
    std::size_t text_limit_;
    GDALDatasetUniquePtr data_;
    OGRLayer* layer_ = nullptr;
    bool begun_ = false;
};

}  // namespace

std::unique_ptr<line_writer> write_layer(const fs::path& out, const fs::path& file, const char* driver,
                                         std::size_t text_limit, const std::string& crs) {
    return std::make_unique<layer_writer>(out, file, driver, text_limit, crs);
}

}  // namespace oxhost
