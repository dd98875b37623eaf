#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include "exchange/gdal.h"
#include "exchange/layer_reader.h"
#include "exchange/point_table.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

GDALDatasetUniquePtr open_source(const fs::path& source) {
    // A geometry that a table spells as text is no attribute as well.
    const char* const options[] = {"KEEP_GEOM_COLUMNS=NO", nullptr};
    const char* const tables[] = {"CSV", nullptr};
    CPLPushErrorHandler(CPLQuietErrorHandler);
    GDALDatasetUniquePtr data(
        GDALDataset::Open(source.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, tables, options));
    CPLPopErrorHandler();
    if (!data) data.reset(GDALDataset::Open(source.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
    return data;
}

/// A project's own table: whatever else the file has are views of it.
OGRLayer* scenes_of_project(GDALDataset& data) {
    OGRLayer* scenes = data.GetLayerByName("scenes");
    if (!scenes || std::string_view(data.GetDriverName()) != "GPKG") return nullptr;
    for (const char* own : {"caption", "profile", "proj4"})
        if (scenes->GetLayerDefn()->GetFieldIndex(own) < 0) return nullptr;
    return scenes;
}

std::vector<OGRLayer*> chosen_layers(GDALDataset& data, const std::string& name) {
    std::vector<OGRLayer*> layers;
    if (name.empty()) {
        if (OGRLayer* scenes = scenes_of_project(data)) return {scenes};
        for (OGRLayer* layer : data.GetLayers()) layers.push_back(layer);
        return layers;
    }
    if (OGRLayer* chosen = data.GetLayerByName(name.c_str())) return {chosen};
    std::vector<std::string> names;
    for (OGRLayer* layer : data.GetLayers()) names.emplace_back(layer->GetName());
    throw exchange_error(words("нет слоя ", "has no layer ") + '"' + name + "\"" +
                         words("; есть ", "; there are ") + quoted_list(names));
}

std::size_t read_layer(const fs::path& source, OGRLayer& layer, const import_options& options,
                       import_notes& notes, scene_taker& taker) {
    if (const auto fields = find_point_fields(layer, options.points))
        return read_point_table(source, layer, *fields, options, notes, taker);
    const std::size_t scenes = layer_reader(source, layer, options, notes).read(taker);
    if (scenes == 0 && layer.GetGeomType() == wkbNone)
        notes.remark(words("слой ", "layer ") + '"' + layer.GetName() + "\": " +
                     words("без геометрии и без узнаваемых полей линии и координат; их задают "
                           "--line, --x, --y",
                           "no geometry, and no columns known for line and coordinates; "
                           "--line, --x, --y name them"));
    return scenes;
}

}  // namespace

import_report import_file(const fs::path& source, const import_options& options, scene_taker& taker) {
    const gdal_guard reports;
    if (!fs::exists(source)) reports.refuse(source, words("нет такого файла", "no such file"));
    const GDALDatasetUniquePtr data = open_source(source);
    if (!data)
        reports.refuse(source, words("не читается как векторные данные", "cannot be read as vector data"));
    import_report report;
    import_notes notes;
    try {
        for (OGRLayer* layer : chosen_layers(*data, options.layer)) {
            report.scenes += read_layer(source, *layer, options, notes, taker);
            if (reports.failed()) break;
        }
    } catch (const exchange_error& e) {
        reports.refuse(source, e.what());
    }
    if (reports.failed()) reports.refuse(source, words("повреждён", "is damaged"));
    report.losses = notes.losses();
    report.remarks = notes.remarks();
    if (const std::string warnings = reports.warnings(); !warnings.empty())
        report.remarks.push_back(words("замечание читателя: ", "the reader warns: ") + warnings);
    return report;
}

}  // namespace oxhost
