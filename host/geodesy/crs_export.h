#pragma once
/// The texts as files of other software spell them. [ui]

#include <string>
#include <string_view>

namespace oxhost {

struct crs_spelling {
    std::string epsg;  ///< "EPSG:n" where the database has this very system, else empty
    std::string wkt;   ///< with the datum shift; of the older dialect as far as that says all
};

/// Throws std::invalid_argument, with PROJ's reason, for a text that PROJ refuses or cannot spell.
crs_spelling spell_out(std::string_view proj4);

}  // namespace oxhost
