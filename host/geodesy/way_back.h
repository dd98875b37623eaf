#pragma once
/// Does a line that was transformed come back to its place? Far from where a projection belongs its formulas
/// give finite numbers that mean nothing, and only the way back tells. [ui]

#include <cstddef>

#include "base/line.h"
#include "geodesy/transformation.h"

namespace oxhost {

struct return_test {
    std::size_t vertex = 0;  ///< that misses its place by most
    double metres = 0;       ///< infinite where there is no way back
};

/// The worst of the vertices that were tested: first, last, outermost and one in thirty-two; all of a short
/// line, or when one stands out. What a datum shift cannot take back, since lines have no heights, does not
/// count: centimetres where it moves the ellipsoid by hundreds of metres.
return_test test_return(const polyline& line, const polyline& result, const transformation& way,
                        double tolerance);

}  // namespace oxhost
