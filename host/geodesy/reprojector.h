#pragma once
/// A scene's line on its way into another projection: transformed, judged by the way back, and given more
/// vertices where straight segments would bow. [ui]

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/line.h"
#include "geodesy/transformation.h"

namespace oxhost {

/// What is asked of every line; one per process.
struct reprojection_rules {
    double return_tolerance = 0.01;  ///< metres by which a vertex may miss its place on the way back
    bool one_way = false;            ///< projections without an inverse may be targets
    double densify = 0;              ///< metres by which a segment may bow before it is divided; 0: never
};
const reprojection_rules& current_rules();
void use_rules(const reprojection_rules& rules);

/// PROJ's part of the work on a line, done before the line was asked for.
struct line_image {
    polyline places;    ///< of every vertex, as a lane gives them
    polyline returned;  ///< of the tested vertices; empty without a way back
};

/// Asked for every line that is reprojected, until it is replaced by an empty one: bit for bit what the way
/// would make of the line, or nothing.
using image_source = std::function<std::optional<line_image>(const polyline&, const transformation&)>;
void use_images(image_source source);

/// Why the rules refuse the text as a target, in the user's language; nothing when they do not.
std::optional<std::string> refusal_of_target(std::string_view proj4);

struct reprojected_line {
    std::optional<vertex_failure> failure;  ///< the line is as it was
    /// Metres, as test_return finds them. Nothing without a way back.
    std::optional<double> return_error;
    std::size_t added_vertices = 0;
};

/// By the current rules. All or nothing.
reprojected_line reproject(section_line& line, const transformation& way);

/// Divides the segments of `line` that bow by more than `metres`, at their middles in the source's plane;
/// what the vertices carry is interpolated along the segment. Places that cannot be transformed divide
/// nothing. Answers how many vertices were added.
std::size_t densify(section_line& line, const transformation& way, double metres);

/// Metres by which straight segments of `line` bow in the target, whose vertices `result` holds: between the
/// images of points on a segment and the straight line through the images of its ends. The most of the
/// longest segments, which bow most. Nothing when a point cannot be transformed.
std::optional<double> segment_deviation(const polyline& line, const polyline& result,
                                        const transformation& way);

}  // namespace oxhost
