#pragma once
/// How a proj4 text differs from the coordinate system that it is to stand for. [ui]

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/language.h"

namespace oxhost {

struct text_difference {
    /// In words: projection, unit, prime meridian, ellipsoid, datum shift, keys.
    std::vector<std::string> lost;
    /// The largest distance on the ground between what both make of the same coordinates, at points of the
    /// system's area of use, to a tenth of a millimetre; nothing when none of them can be placed.
    std::optional<double> metres;

    /// Something is lost, or a point is off by more than a centimetre.
    bool changed() const;
};

/// `definition` is whatever `import_crs` takes. Its places on WGS 84 are those of its own shift, or of the
/// most accurate operation that the EPSG data set publishes for the middle of its area and that needs no
/// grid. Nothing differs from a definition that is empty or unknown.
text_difference difference_of(std::string_view definition, std::string_view proj4, language wanted);

/// For the user; empty when nothing changed.
std::string difference_line(const text_difference& difference, language wanted);

}  // namespace oxhost
