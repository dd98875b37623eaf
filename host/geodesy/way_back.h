#pragma once
/// Does a line that was transformed come back to its place? Far from where a projection belongs its formulas
/// give finite numbers that mean nothing, and only the way back tells. [ui]

#include <cstddef>
#include <optional>
#include <vector>

#include "base/line.h"
#include "geodesy/transformation.h"

namespace oxhost {

/// Every vertex of a short line; of a long one the ends, the outermost, where projections go wrong first, and
/// one in thirty-two.
std::vector<std::size_t> tested_vertices(const polyline& line);

polyline vertices_at(const polyline& line, const std::vector<std::size_t>& places);

struct return_test {
    std::size_t vertex = 0;  ///< that misses its place by most
    double metres = 0;       ///< infinite where there is no way back
};

/// The worst of the tested vertices, or of all when one of them stands out. What a datum shift cannot take
/// back, since lines have no heights, does not count: centimetres where it moves the ellipsoid by hundreds of
/// metres.
/// `returned` is where the tested vertices come back to, when that is known.
return_test test_return(const polyline& line, const polyline& result, const transformation& way,
                        double tolerance, std::optional<polyline> returned = {});

}  // namespace oxhost
