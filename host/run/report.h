#pragma once
/// What became of a reprojection, told to programs and to people.

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "run/reprojection.h"

namespace oxhost::run {

/// Indented; bytes that are no UTF-8, as a foreign file may hold, come out as U+FFFD.
std::string json_text(const nlohmann::ordered_json& value);

/// The report as JSON. Lengths and distances are metres along the ellipsoid, accuracies metres, `null`
/// where there is nothing to tell:
///
///     project, target {given, proj4}, dry_run, on_error, proj {library, database}, warnings [text],
///     counts {outcome: scenes},
///     scenes [{index, caption, source_proj4, target_proj4, outcome, rolled_back, vertices,
///              added_vertices, length_before_m, length_after_m, planar_length_before_m,
///              planar_length_after_m, scale_error_percent, segment_deviation_m, return_error_m,
///              largest_ground_shift_m, largest_datum_shift_m,
///              operation {name, definition, accuracy_m, source_shift, target_shift},
///              failure {reason, vertex, x, y}}]
///
/// `outcome` is reprojected, assigned, reset, unchanged, failed or "not attempted". The ground shift is how
/// far a vertex moved on the ground, each text's datum counted: about 0 when all is well. The datum shift is
/// the change of longitude and latitude as numbers: the error of whoever forgets the datum. `vertex` counts
/// from 0, `x` and `y` are its coordinates in the source projection.
///
/// Planar lengths are those in the plane of the projection. The scale error is the largest relative
/// difference between a segment's length in the plane of the result and along the ellipsoid. The segment
/// deviation is how far a straight segment of the source bows from the straight one that the result has for
/// it. The return error is how far from its place a vertex lies when the result is brought back: the largest
/// of those that were tested, of a failed scene too. `vertices` are those before the run, `added_vertices`
/// come on top.
std::string report_text(const record& told);

/// The lines before and after as an SVG picture, in the user's language.
std::string map_text(const record& told);

}  // namespace oxhost::run
