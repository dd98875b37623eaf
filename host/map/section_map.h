#pragma once
/// Section lines before and after as an SVG picture: plate carree of longitude and latitude, shortened in
/// longitude by the cosine of the middle latitude, with land, graticule, captions, legend, and a table.

#include <optional>
#include <string>
#include <vector>

#include "base/language.h"
#include "base/line.h"
#include "map/listing.h"

namespace oxhost::map {

/// What became of a line.
enum class look { changed, kept, failed };

struct mapped_line {
    std::size_t number = 0;  ///< that the user knows the line by
    std::string caption;
    look shown_as = look::kept;
    // WGS 84 longitude and latitude, finite; a line without a place on the map has neither.
    std::optional<polyline> before;  ///< where that is another line
    std::optional<polyline> now;
    // For the table:
    std::optional<displacement> shift;
    std::optional<double> scale_error;
};

struct sheet {
    std::string title;
    std::string subtitle;
    std::string note;  ///< at the end of the legend
    language wanted = language::english;
    std::vector<mapped_line> lines;
};

std::string section_map(sheet shown);

}  // namespace oxhost::map
