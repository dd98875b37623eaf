#pragma once

#include <string>

#include "run/record.h"

namespace oxhost::app {

/// The section lines before and after as an SVG picture: plate carree of WGS 84 longitude and latitude,
/// shortened in longitude by the cosine of the middle latitude, with a graticule, captions and a legend.
std::string section_map(const run_record& of);

}  // namespace oxhost::app
