#include "exchange/layer_crs.h"

#include <ogrsf_frmts.h>

#include "base/language.h"
#include "base/text.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

/// Whether the source's coordinates come as northing, easting.
bool is_northing_first(const OGRSpatialReference& crs) {
    OGRSpatialReference usual(crs);
    usual.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const auto given = crs.GetDataAxisToSRSAxisMapping();
    const auto wanted = usual.GetDataAxisToSRSAxisMapping();
    return given.size() >= 2 && wanted.size() >= 2 && given[0] == wanted[1] && given[1] == wanted[0];
}

bool carries_shift(const OGRSpatialReference& crs) {
    double shift[7];
    return crs.GetTOWGS84(shift, 7) == OGRERR_NONE;
}

/// "EPSG:n" when the system is the one of this code in all it says.
std::string code_of(const OGRSpatialReference& crs) {
    const char* authority = crs.GetAuthorityName(nullptr);
    const char* code = crs.GetAuthorityCode(nullptr);
    if (!authority || !code || std::string_view(authority) != "EPSG" || carries_shift(crs)) return {};
    OGRSpatialReference published;
    if (published.importFromEPSG(std::atoi(code)) != OGRERR_NONE) return {};
    const char* const criteria[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES",
                                    "CRITERION=EQUIVALENT_EXCEPT_AXIS_ORDER_GEOGCRS", nullptr};
    return crs.IsSame(&published, criteria) ? std::string("EPSG:") + code : "";
}

std::string name_of(const OGRSpatialReference& crs) {
    const char* authority = crs.GetAuthorityName(nullptr);
    const char* code = crs.GetAuthorityCode(nullptr);
    if (authority && code) return std::string(authority) + ':' + code;
    const char* name = crs.GetName();
    return name ? name : "";
}

std::string wkt_of(const OGRSpatialReference& crs) {
    const char* const form[] = {"FORMAT=WKT2_2019", nullptr};
    char* text = nullptr;
    const bool made = crs.exportToWkt(&text, form) == OGRERR_NONE && text;
    std::string wkt = made ? text : "";
    CPLFree(text);
    return wkt;
}

std::string gdal_text(const OGRSpatialReference& crs) {
    char* text = nullptr;
    const bool made = crs.exportToProj4(&text) == OGRERR_NONE && text;
    const std::string proj4(trimmed(made ? text : ""));
    CPLFree(text);
    return proj4;
}

/// The projection file beside a layer's file; empty when there is none.
fs::path prj_beside(const fs::path& source, OGRLayer& layer) {
    const std::string name = std::string(layer.GetName()) + ".prj";
    const fs::path file =
        fs::is_directory(source) ? source / name : fs::path(source).replace_extension(".prj");
    return fs::exists(file) ? file : fs::path();
}

/// Whether the projection file's companion is read for the layer: it belongs to shapefiles.
bool has_companion(const fs::path& source, const fs::path& prj) {
    const std::string kind = lower(source.extension().string());
    return (kind == ".shp" || fs::is_directory(source)) && fs::exists(prj.string() + ".pj4");
}

std::string in_quotes(const std::string& name) { return '"' + name + '"'; }

}  // namespace

layer_crs read_layer_crs(const fs::path& source, OGRLayer& layer, const import_options& options) {
    layer_crs found;
    const OGRSpatialReference* crs = layer.GetSpatialRef();
    const fs::path prj = prj_beside(source, layer);
    if (crs) {
        found.northing_first = is_northing_first(*crs);
        if (!crs->IsLocal()) found.name = name_of(*crs);
    }
    // A companion holds what the file itself could not; GDAL has read the file of a shapefile already.
    if (options.prj_text && !prj.empty() && (!crs || has_companion(source, prj))) {
        found.proj4 = options.prj_text(prj);
        if (!found.proj4.empty() && !crs)
            found.remarks.push_back(words("проекция взята из файла ", "projection taken from the file ") +
                                    prj.filename().string());
    }
    if (!found.proj4.empty() || !crs || crs->IsLocal()) return found;

    const std::string code = code_of(*crs);
    const std::string definition = code.empty() ? wkt_of(*crs) : code;
    if (options.crs_text) found.proj4 = options.crs_text(definition);
    if (found.proj4.empty()) found.proj4 = gdal_text(*crs);
    if (found.proj4.empty()) {
        found.remarks.push_back(
            in_quotes(found.name) +
            std::string(
                in_language(": система координат не выражается текстом proj4, сцены без проекции",
                            ": this coordinate system has no proj4 text, the scenes get no projection")));
        return found;
    }
    if (options.crs_difference)
        if (const std::string line = options.crs_difference(definition, found.proj4); !line.empty())
            found.remarks.push_back(in_quotes(found.name) + ": " + line);
    if (const OGRSpatialReference whole(*crs); whole.IsCompound())
        found.remarks.push_back(in_quotes(found.name) +
                                words(": система высот не хранится, сами высоты остаются как есть",
                                      ": its vertical system is not kept, the heights stay as they are"));
    return found;
}

}  // namespace oxhost
