#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <initializer_list>

#include "base/text.h"
#include "exchange/gdal.h"

namespace oxhost {

namespace {

/// The first of the named fields that the layer has, whatever the case of its letters; -1 when none.
int find_field(const OGRFeatureDefn& layer, std::initializer_list<const char*> names) {
    for (const char* name : names)
        if (const int field = layer.GetFieldIndex(name); field >= 0) return field;
    return -1;
}

std::string proj4_of(const OGRSpatialReference* crs, const import_options& options) {
    if (!crs) return {};
    double shift[7];
    const bool carries_shift = crs->GetTOWGS84(shift, 7) == OGRERR_NONE;
    const char* authority = crs->GetAuthorityName(nullptr);
    const char* code = crs->GetAuthorityCode(nullptr);
    if (!carries_shift && options.crs_text && authority && code && std::string_view(authority) == "EPSG")
        if (std::string text = options.crs_text(std::string("EPSG:") + code); !text.empty()) return text;
    char* text = nullptr;
    std::string proj4 = crs->exportToProj4(&text) == OGRERR_NONE && text ? text : "";
    CPLFree(text);
    return proj4.substr(0, proj4.find_last_not_of(' ') + 1);
}

/// Whether the layer's coordinates come as northing, easting.
bool northing_first(const OGRSpatialReference* crs) {
    if (!crs) return false;
    OGRSpatialReference usual(*crs);
    usual.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const auto given = crs->GetDataAxisToSRSAxisMapping();
    const auto wanted = usual.GetDataAxisToSRSAxisMapping();
    return given.size() >= 2 && wanted.size() >= 2 && given[0] == wanted[1] && given[1] == wanted[0];
}

bool is_true(const OGRFeature& feature, int field) {
    const std::string text = lower(feature.GetFieldAsString(field));
    return !(text.empty() || text == "0" || text == "false" || text == "no");
}

class layer_reader {
public:
    layer_reader(OGRLayer& layer, const import_options& options)
        : layer_(layer),
          options_(options),
          swap_(northing_first(layer.GetSpatialRef())),
          layer_proj4_(options.proj4 ? *options.proj4 : proj4_of(layer.GetSpatialRef(), options)),
          caption_(find_field(*layer.GetLayerDefn(), {"caption", "name", "title"})),
          profile_(find_field(*layer.GetLayerDefn(), {"profile"})),
          proj4_(options.proj4 ? -1 : find_field(*layer.GetLayerDefn(), {"proj4"})) {}

    import_counts read(const std::function<void(new_scene&&)>& sink) {
        import_counts counts;
        for (const OGRFeatureUniquePtr& feature : layer_) {
            const std::size_t scenes = read(*feature, sink);
            counts.scenes += scenes;
            counts.skipped += scenes == 0;
        }
        return counts;
    }

private:
    std::size_t read(const OGRFeature& feature, const std::function<void(new_scene&&)>& sink) {
        const OGRGeometry* geometry = feature.GetGeometryRef();
        if (!geometry) {
            if (profile_ < 0 || !feature.IsFieldSetAndNotNull(profile_)) return 0;
            sink(scene_of(feature));
            return 1;
        }
        OGRGeometryUniquePtr straight;
        if (geometry->hasCurveGeometry(TRUE)) {
            straight.reset(geometry->getLinearGeometry());
            geometry = straight.get();
        }
        const auto type = wkbFlatten(geometry->getGeometryType());
        if (type == wkbLineString) {
            sink(scene_of(feature, geometry->toLineString()));
            return 1;
        }
        if (type != wkbMultiLineString) return 0;
        const OGRMultiLineString& parts = *geometry->toMultiLineString();
        std::size_t number = 0;
        for (const OGRLineString* part : parts) {
            new_scene scene = scene_of(feature, part);
            if (parts.getNumGeometries() > 1) scene.caption += " " + std::to_string(number + 1);
            sink(std::move(scene));
            ++number;
        }
        return number;
    }

    new_scene scene_of(const OGRFeature& feature, const OGRLineString* line = nullptr) const {
        new_scene made;
        made.caption = caption_ >= 0 ? feature.GetFieldAsString(caption_) : "";
        if (made.caption.empty())
            made.caption = std::string(layer_.GetName()) + " " + std::to_string(feature.GetFID());
        made.profile = !options_.not_profile && (profile_ < 0 || !feature.IsFieldSetAndNotNull(profile_) ||
                                                 is_true(feature, profile_));
        made.proj4 = proj4_ >= 0 && feature.IsFieldSetAndNotNull(proj4_) ? feature.GetFieldAsString(proj4_)
                                                                         : layer_proj4_;
        if (line) made.line = points_of(*line, made.caption);
        return made;
    }

    polyline points_of(const OGRLineString& line, const std::string& caption) const {
        polyline points(static_cast<std::size_t>(line.getNumPoints()));
        for (std::size_t i = 0; i < points.size(); ++i) {
            const int vertex = static_cast<int>(i);
            points[i] = swap_ ? point{line.getY(vertex), line.getX(vertex)}
                              : point{line.getX(vertex), line.getY(vertex)};
            if (!is_finite(points[i]))
                throw exchange_error("vertex " + std::to_string(i) + " of \"" + caption +
                                     "\" is not a number");
        }
        return points;
    }

    OGRLayer& layer_;
    const import_options& options_;
    bool swap_;
    std::string layer_proj4_;
    int caption_;
    int profile_;
    int proj4_;
};

}  // namespace

import_counts import_file(const std::filesystem::path& source, const import_options& options,
                          const std::function<void(new_scene&&)>& sink) {
    const gdal_guard reports;
    if (!std::filesystem::exists(source)) reports.refuse(source, "no such file");
    const GDALDatasetUniquePtr data(GDALDataset::Open(source.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
    if (!data) reports.refuse(source, "cannot be read as vector data");
    import_counts counts;
    for (OGRLayer* layer : data->GetLayers()) {
        try {
            const import_counts added = layer_reader(*layer, options).read(sink);
            counts.scenes += added.scenes;
            counts.skipped += added.skipped;
        } catch (const exchange_error& e) {
            reports.refuse(source, e.what());
        }
        if (reports.failed()) reports.refuse(source, "is damaged");
    }
    return counts;
}

}  // namespace oxhost
