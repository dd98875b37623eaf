#pragma once
/// The figures by which one scene's reprojection is judged: for reports and for windows.

#include <optional>
#include <stdexcept>
#include <string>

#include "geodesy/measure.h"
#include "geodesy/transformation.h"
#include "run/reprojection.h"

namespace oxhost::run {

/// What `measure` tells of a projection's text; nothing where the text is empty or refused by PROJ.
template <class Measure>
auto measured(const std::string& proj4, Measure&& measure) -> decltype(measure()) {
    try {
        if (!proj4.empty()) return measure();
    } catch (const std::invalid_argument&) {
    }
    return std::nullopt;
}

/// Metres, except where the name says otherwise; nothing where there is nothing to measure.
struct judgement {
    // Along the ellipsoid, and in the plane of the projection:
    std::optional<double> length_before, length_after;
    std::optional<double> planar_before, planar_after;
    // Only of a line that was reprojected:
    std::optional<double> scale_error_percent;  ///< largest of a segment; only in a plane
    std::optional<double> segment_deviation;
    std::optional<line_shift> shift;
    std::optional<operation_info> operation;
};

/// Of the result `i` of a record that has its lines. What PROJ refuses measures nothing.
judgement judge(const record& told, std::size_t i);

/// As a way on the map, of a line that was reprojected.
std::optional<number_shift> shift_on_map(const record& told, std::size_t i);

/// Where a line lies by its text, WGS 84 longitude and latitude, if that can be told.
std::optional<polyline> placed(const polyline& line, const std::string& proj4);

}  // namespace oxhost::run
