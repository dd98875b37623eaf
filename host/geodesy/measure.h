#pragma once
/// Lengths and distances on the ground, for reports and maps. Metres. Functions that take texts throw
/// std::invalid_argument for one that PROJ refuses. [ui]

#include <optional>
#include <string_view>

#include "base/line.h"

namespace oxhost {

/// Length along geodesics of the ellipsoid on which `proj4` puts the line; no datum shift enters.
/// Nothing when a vertex cannot be placed on the ellipsoid.
std::optional<double> geodesic_length(const polyline& line, std::string_view proj4);

/// Length in the plane of the projection. Nothing for longitude/latitude, which has no such plane.
std::optional<double> planar_length(const polyline& line, std::string_view proj4);

/// The line as WGS 84 longitude, latitude in degrees, each text's own datum shift counted; a text without
/// datum is taken as WGS 84. Nothing when a vertex cannot be transformed.
std::optional<polyline> to_wgs84(const polyline& line, std::string_view proj4);

/// How far the vertices of a line moved.
struct line_shift {
    /// Largest distance between a vertex's old and new place on the ground, both found by what its own
    /// text says. A reprojection leaves it at about 0; anything else means that coordinates and text do
    /// not belong together.
    double ground = 0;
    /// Largest change of longitude and latitude as numbers, as a distance: what the change of datum
    /// amounts to, and the error if it were forgotten.
    double datum = 0;
};

/// `before` in `source`, `after` in `target`, vertex by vertex. Nothing when a vertex cannot be
/// transformed or the lines differ in their count.
std::optional<line_shift> shift_between(const polyline& before, std::string_view source,
                                        const polyline& after, std::string_view target);

/// The largest change of longitude and latitude as numbers, as a way on WGS 84: metres, and degrees from
/// north, clockwise. Nothing where `shift_between` has nothing.
struct number_shift {
    double metres = 0;
    double azimuth = 0;
};
std::optional<number_shift> shift_of_numbers(const polyline& before, std::string_view source,
                                             const polyline& after, std::string_view target);

/// Largest relative difference between a segment's length in the plane of the projection and along the
/// ellipsoid: 0.01 is one percent. 0 for longitude/latitude. Nothing when a vertex cannot be placed.
std::optional<double> length_distortion(const polyline& line, std::string_view proj4);

/// Geodesic between two places given as longitude, latitude in degrees, on WGS 84.
double ground_distance(point a, point b);

}  // namespace oxhost
