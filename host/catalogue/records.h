#pragma once
/// The projection catalogue's sources, brought into the records of its four tables.

#include <filesystem>
#include <string>
#include <vector>

#include "catalogue/tsv.h"

namespace oxhost {

/// A record to be. Columns that it does not name are blank.
struct catalogue_record {
    std::string place;   ///< of the source row
    named_cells fields;  ///< column name to text
    // Not part of the table:
    std::string source;                ///< where its numbers come from, such as "EPSG:28407"
    std::vector<std::string> systems;  ///< a datum's geographic systems, such as "EPSG:4284"
    std::string also;                  ///< further names, "; " between them

    /// Text of a column, empty when blank.
    std::string text(std::string_view column) const;
};

struct catalogue_records {
    std::vector<catalogue_record> ellipsoids, datums, usual, zonal;
};

/// Reads ellipsoids.tsv, datums.tsv, projections.tsv and zones.tsv. Throws std::runtime_error that
/// names the row: for a cell that is no number, a name given twice, a datum or ellipsoid that is not there.
catalogue_records read_catalogue_sources(const std::filesystem::path& folder);

}  // namespace oxhost
