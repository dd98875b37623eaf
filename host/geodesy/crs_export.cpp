#include "geodesy/crs_export.h"

#include <stdexcept>

#include "geodesy/crs.h"
#include "geodesy/crs_import.h"

namespace oxhost {
namespace {

std::string wkt_of(const PJ* system, PJ_WKT_TYPE dialect) {
    constexpr const char* one_line[] = {"MULTILINE=NO", nullptr};
    const char* wkt = proj_as_wkt(proj_context(), system, dialect, one_line);
    return wkt ? wkt : "";
}

/// Whether the WKT alone gives back the text's system.
bool says_all(const std::string& wkt, std::string_view proj4) {
    const pj_ptr read(proj_create(proj_context(), wkt.c_str()));
    const auto text = read ? proj4_of(read.get()) : std::nullopt;
    return text && equal(*text, proj4);
}

}  // namespace

crs_spelling spell_out(std::string_view proj4) {
    const auto system = crs_of(proj4);
    if (!system->valid()) throw std::invalid_argument(system->error);
    crs_spelling spelled;
    spelled.epsg = exact_code(proj4);
    spelled.wkt = wkt_of(system->object.get(), PJ_WKT1_GDAL);
    if (spelled.wkt.empty() || !says_all(spelled.wkt, proj4))
        spelled.wkt = wkt_of(system->object.get(), PJ_WKT2_2019);
    const std::string reason = take_proj_complaint();
    if (spelled.wkt.empty()) throw std::invalid_argument(reason);
    return spelled;
}

}  // namespace oxhost
