#pragma once
/// The table of the lines beside a map: number, caption, shift with its direction, scale error.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/language.h"

namespace oxhost::map {

/// How far and whereto something moved.
struct displacement {
    double metres;
    double azimuth;  ///< degrees from north, clockwise
};

/// "NW 315°"
std::string direction_words(double azimuth, language wanted);

struct listed_line {
    std::size_t number;
    std::string caption;
    std::optional<displacement> shift;
    std::optional<double> scale_error;  ///< relative: 0.01 is one percent
    bool failed = false;
};

struct table {
    std::string elements;
    double height;
};

/// The places of the lines that are listed, in their order: all of them or, of very many, those that failed
/// and those whose scale error is largest.
std::vector<std::size_t> chosen_to_list(const std::vector<listed_line>& lines);

/// In as many columns as the captions allow, from (x, y) on, `width` wide; `all` is how many lines there are,
/// so that it can be said when not all are listed.
table list_lines(double x, double y, double width, const std::vector<listed_line>& lines, std::size_t all,
                 language wanted);

}  // namespace oxhost::map
