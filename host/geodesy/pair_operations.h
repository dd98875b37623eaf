#pragma once
/// What PROJ knows of the way between two coded systems, beside what their proj4 texts can say. [ui]

#include <optional>
#include <string>

#include "base/line.h"

namespace oxhost {

struct better_operation {
    std::string name;
    double accuracy;   ///< metres
    std::string grid;  ///< the file that is missing here
};

struct unexpressed_change {
    std::string name;  ///< of the operation that PROJ itself would take
    double metres;     ///< between its place and that of the texts, on the ground
};

/// A system by its code, and the text that stands for it.
struct coded_system {
    std::string code;  ///< such as "EPSG:28355"
    std::string proj4;
};

struct pair_operations {
    std::optional<better_operation> better;
    std::optional<unexpressed_change> unexpressed;  ///< where that is more than a centimetre
};

/// At `place`, given in the source. `accuracy`: metres, of the way that the texts take.
pair_operations operations_beside(const coded_system& source, const coded_system& target, point place,
                                  std::optional<double> accuracy);

}  // namespace oxhost
