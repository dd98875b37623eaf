#pragma once
/// Tables of points, such as navigation logs: rows of one line value make one scene.

#include <filesystem>
#include <optional>

#include "exchange/exchange.h"
#include "exchange/import_notes.h"

class OGRLayer;

namespace oxhost {

/// Fields of a table by their numbers; -1: none, the coordinates then come from the geometry.
struct point_fields {
    int line = -1, order = -1, x = -1, y = -1, z = -1;
    bool degrees = false;      ///< the coordinates' names are longitude and latitude
    bool order_given = false;  ///< by the user, not found
};

/// The fields that the user named, the others by their common names. Nothing when the layer is no table of
/// points; throws exchange_error for a name that it lacks.
std::optional<point_fields> find_point_fields(OGRLayer& layer, const point_columns& given);

/// Answers the number of scenes. A line's vertices are in the order of the order field, numbers before all
/// else, or of the rows; values that are the same in all rows of a line become its attributes.
std::size_t read_point_table(const std::filesystem::path& source, OGRLayer& layer, const point_fields& fields,
                             const import_options& options, import_notes& notes, scene_taker& taker);

}  // namespace oxhost
