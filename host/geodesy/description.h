#pragma once
/// What a proj4 text means, in words. UTF-8. [ui]

#include <string>
#include <string_view>

#include "base/language.h"

namespace oxhost {

/// The parts of a description, each one line; empty for an empty or refused text.
struct crs_facts {
    std::string projection;  ///< kind with its zone, without parameters
    std::string parameters;  ///< "central meridian 39°, ..."; empty for longitude/latitude
    std::string ellipsoid;   ///< name and axes
    std::string datum;       ///< named datum, shift parameters, or that there is none
    std::string units;
};
crs_facts facts_of(std::string_view proj4, language wanted);

/// Several lines. An empty text is described as not defined, a refused one with PROJ's reason.
std::string describe(std::string_view proj4, language wanted);

/// One line, for the rows of lists.
std::string short_description(std::string_view proj4, language wanted);

}  // namespace oxhost
